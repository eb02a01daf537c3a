#include "tests/support/sending.h"

#include <gtest/gtest.h>

namespace {

using namespace platform;
using tests::Sending;
using tests::utf8;

/// What the confirmation shows beside its text.
std::string shown(const send::frmSBox& box) {
    std::string lines;
    for (const Label* label : {&box.People, &box.When, &box.Amount, &box.Nameless, &box.Lost})
        if (label->visible()) lines += utf8(label->caption()) + "\r\n";
    return lines + utf8(box.Preview.text());
}

std::string confirmation_of(Sending& s) {
    std::string lines;
    s.desktop.in_form<send::frmSBox>(u"frmSBox", [&](send::frmSBox& box) {
        lines = shown(box);
        box.Command2.Click.raise();
    });
    s.click();
    return lines;
}

TEST(Forecast, TellsWhoGetsWhatInHowManyMessagesAndHowLongItTakes) {
    const struct {
        const char* draft;
        std::function<void(Sending&)> write;
        const char* forecast;
    } rows[] = {
        {"a text to many",
         [](Sending& s) {
             s.add_many(250);
             s.add(u"b", u"01022223333", false);
         },
         "250명\r\n바로 발송\r\n18Bytes\r\n한 사람에 1건\r\n3묶음으로 등록\r\n약 3초\r\n[홍길동]안녕하세요"},
        {"a long text",
         [](Sending& s) {
             s.type(Text(81, u'a'));
             s.add_many(101);
         },
         "101명\r\n바로 발송\r\n81Bytes\r\n한 사람에 2건\r\n모두 202건\r\n4묶음으로 등록\r\n약 4초\r\n"
         "aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa"},
        {"a personal text",
         [](Sending& s) {
             s.form.text.Check1.set_checked(true);
             s.type(Text(70, u'a') + u"{이름}{직위}");
             s.add(u"이름없음", u"01011112222");
             s.add(u"김민준", u"01022223333", true, u"대표이사");
             s.add(u"박", u"01033334444");
         },
         "3명\r\n바로 발송\r\n최대 84Bytes\r\n한 사람에 1~2건\r\n모두 3건\r\n한 사람씩 등록\r\n약 2초\r\n"
         "이름이 없는 1명에게는 발송되지 않습니다.\r\n"
         "aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa김민준대표이사"},
        {"a text with a voice on a day to come",
         [](Sending& s) {
             s.form.choose(compose::MessageKind::plus);
             s.form.plus.mText2.set_text(u"들어 보세요");
             s.form.voice.ttsText.set_text(u"음성입니다");
             s.form.schedule.Option2.set_chosen(true);
             s.form.schedule.DTP1.set_value(make_time(2028, 2, 29));
             s.form.schedule.Combo1.set_list_index(9);
             s.form.schedule.Combo2.set_list_index(5);
             s.add_many(1);
         },
         "1명\r\n2월 29일 화요일 09:05 예약\r\n11Bytes\r\n한 사람에 1건\r\n1묶음으로 등록\r\n약 1초\r\n"
         "들어 보세요\r\n[음성] 음성입니다"},
        {"a fax to many",
         [](Sending& s) {
             s.form.choose(compose::MessageKind::fax);
             s.files.files[u"c:\\문서\\a.txt"] = s.files.files[u"c:\\b.doc"] = "a";
             s.form.fax.add(u"c:\\문서\\a.txt");
             s.form.fax.add(u"c:\\b.doc");
             for (int i = 0; i < 24'000; ++i) s.add(u"", u"02" + decimal(1'000'000 + i));
         },
         "24000명\r\n바로 발송\r\n240묶음으로 등록\r\n약 1시간 2분\r\n[문서] a.txt\r\n[문서] b.doc"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.draft);
        Sending s;
        row.write(s);
        std::string forecast = confirmation_of(s);
        EXPECT_EQ(forecast, row.forecast);
    }
}

TEST(Forecast, TakesWhatTheCarrierCannotSendOutOfTheDraft) {
    Sending s;
    s.add_many(1);
    s.type(u"\U0001F600안녕\U0001F44D\U0001F3FD");
    s.form.subject.subjectText.set_text(u"\U0001F600인사");
    s.desktop.in_form<send::frmSBox>(u"frmSBox", [&](send::frmSBox& box) {
        EXPECT_EQ(utf8(box.Lost.caption()), "보낼 수 없는 글자 3개는 ?로 나갑니다.");
        box.TakeOut.Click.raise();
        EXPECT_FALSE(box.Lost.visible() || box.TakeOut.visible());
        EXPECT_EQ(utf8(box.Preview.text()), "안녕");
        EXPECT_NE(utf8(box.Text1.text()).find(": 인사\r\n"), std::string::npos);
        box.Command2.Click.raise();
    });
    s.click();
    EXPECT_EQ(utf8(s.form.text.mText1.text()), "안녕");

    s.type(u"[홍길동]\U0001F600");
    s.desktop.expect_box(tests::refusal(u"메시지 내용을 입력하십시오!"));
    s.desktop.in_form<send::frmSBox>(u"frmSBox", [&](send::frmSBox& box) { box.TakeOut.Click.raise(); });
    s.click();
    EXPECT_EQ(s.desktop.forms, (std::vector<Text>{u"frmSBox", u"frmSBox"})) << "nothing is left to send";
}

}  // namespace
