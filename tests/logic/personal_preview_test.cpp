#include "tests/support/sending.h"

#include <gtest/gtest.h>

namespace {

using namespace platform;
using tests::Sending;
using tests::utf8;

std::string shown(const Sending& s) {
    const compose::PersonalPreview& preview = s.form.personal;
    return utf8(preview.PreviewHead.caption()) + "|" + utf8(preview.Preview.text());
}

TEST(PersonalPreview, ReadsAsTheRecipientOfTheRowWillReadIt) {
    Sending s;
    platform::ListView& list = s.form.recipients.ListView1;
    EXPECT_FALSE(s.form.personal.Preview.visible());
    s.form.text.Check1.set_checked(true);
    EXPECT_EQ(shown(s), "받는사람을 추가하면 받을 내용이 보입니다.|");
    s.add(u"김민준", u"01011112222", true, u"대표이사");
    s.add(u"이름없음", u"01022223333");
    s.add(u"박", u"01033334444", true, u"과장");
    s.type(Text(66, u'a') + u" {이름} {직위}");
    s.form.recipients.RECIPIENT_COUNT_CAPTION();
    const std::string a(66, 'a');
    EXPECT_EQ(shown(s), "김민준\r\n82Bytes, 2건|" + a + " 김민준 대표이사");
    list.user_selected_item(2);
    KeyPressed down{KEY_DOWN};
    list.KeyUp.raise(down);
    EXPECT_EQ(shown(s), "박\r\n74Bytes, 1건|" + a + " 박 과장");
    s.type(u"안녕하세요 {이름}");
    EXPECT_EQ(shown(s), "박\r\n13Bytes, 1건|안녕하세요 박");
    list.user_selected_item(1);
    list.MouseUp.raise(MouseButton::left);
    EXPECT_EQ(shown(s), "이름없음\r\n이름이 없어 발송되지 않습니다.|");
    s.form.personal.Longest.Click.raise();
    EXPECT_EQ(list.selected_item(), 0u);
    EXPECT_EQ(shown(s), "김민준\r\n17Bytes, 1건|안녕하세요 김민준");
    s.form.choose(compose::MessageKind::fax);
    EXPECT_FALSE(s.form.personal.Preview.visible());
}

TEST(ByteGauge, TellsHowManyMessagesAndHowManyLostCharacters) {
    tests::TestPlatform machine;
    struct : Form {
        using Form::Form;
        core::ByteGauge gauge{*this, u"fill", u"note"};
    } form{machine.desktop, u"form"};
    const auto shown = [&](const Text& text) {
        form.gauge.show(text, 80);
        const auto& fill = dynamic_cast<const ProgressBar&>(*form.controls()[0]);
        return std::to_string(fill.value()) + utf8(dynamic_cast<const Label&>(*form.controls()[1]).caption());
    };
    EXPECT_EQ(shown(u""), "0");
    EXPECT_EQ(shown(Text(36, u'가')), "90");
    EXPECT_EQ(shown(Text(80, u'a') + u"\U0001F600"), "1002건으로 나누어 발송, 보낼 수 없는 글자 1개");
}

}  // namespace
