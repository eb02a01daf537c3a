#include "core/byte_length.h"
#include "tests/support/main_window.h"

#include <gtest/gtest.h>
#include <string>

namespace {

using platform::BoxAnswer;
using platform::Text;
using tests::press;
using tests::utf8;

const platform::MessageBox TTS_IS_CUT = tests::refusal(
    u"입력하신 문자가 1000Byte를 넘었습니다.\r\n한 번에 1000Byte까지만 전송이 가능합니다.", u"입력 초과");

/// `count` syllables of two bytes each.
Text syllables(std::size_t count) { return Text(count, u'한'); }
Text letters(std::size_t count) { return Text(count, u'a'); }

struct Entry : testing::Test, tests::MainWindow {
    void SetUp() override { compose_as(u""); }

    void expect_question(BoxAnswer answer) {
        desktop.expect_box(tests::long_text_question(), answer);
        if (answer == BoxAnswer::no) desktop.expect_box(tests::TEXT_IS_CUT);
    }
    /// The user edits the end of the field.
    static void edit(platform::TextBox& field, const Text& text) { field.user_edit(text, text.size()); }
    std::string counter() const { return utf8(form.text.mHLen1.caption()); }
};

using LongMessages = Entry;
using ShortTexts = Entry;
using SpokenTexts = Entry;
using Subject = Entry;
using Personalised = Entry;
using SenderName = Entry;

// The text message.

TEST_F(LongMessages, TheCounterCountsBytesAndAPersonalisedTextHasNoLimit) {
    form.text.Check1.set_checked(true);
    const struct {
        Text text;
        const char* counter;
        bool mark;
    } rows[] = {
        {u"한a\r\n", "5Bytes", false},
        {syllables(40), "80Bytes", false},
        {letters(3) + u"   ", "6Bytes", false},
        {syllables(40) + u"a", "81Bytes", true},
    };
    for (const auto& row : rows) {
        edit(form.text.mText1, row.text);
        EXPECT_EQ(counter(), row.counter);
        EXPECT_EQ(form.text.mHLen3.visible(), row.mark) << row.counter;
    }
    press(form.text.mText1, u'b');
    EXPECT_EQ(counter(), "82Bytes");
}

TEST_F(LongMessages, YesIsRememberedUntilTheTextFallsBelowEightyBytes) {
    edit(form.text.mText1, letters(80));
    expect_question(BoxAnswer::yes);
    form.text.mText1.set_focus();
    form.text.mText1.user_edit(letters(81), 3);
    EXPECT_EQ(form.text.mText1.selection_start(), 81u);
    EXPECT_TRUE(form.text.mText1.has_focus());
    EXPECT_EQ(counter(), "81Bytes");

    press(form.text.mText1, u'b');
    edit(form.text.mText1, letters(80));
    edit(form.text.mText1, letters(81));  // at exactly 80 the answer still holds
    edit(form.text.mText1, letters(79));
    expect_question(BoxAnswer::yes);
    edit(form.text.mText1, letters(81));
}

TEST_F(LongMessages, NoCutsTheEndWhereverTheExcessWasTyped) {
    const struct {
        Text text, cut;
    } rows[] = {
        {letters(79) + u"한", letters(79)},
        {u"한" + letters(80), u"한" + letters(78)},
        {letters(75) + Text(20, u' '), letters(75)},
    };
    int lost = 0;
    form.text.mText1.LostFocus.connect([&] { ++lost; });
    for (const auto& row : rows) {
        expect_question(BoxAnswer::no);
        form.text.mText1.set_focus();
        lost = 0;
        form.text.mText1.user_edit(row.text, 1);
        EXPECT_EQ(utf8(form.text.mText1.text()), utf8(row.cut));
        EXPECT_EQ(form.text.mText1.selection_start(), row.cut.size()) << "the caret goes to the new end";
        EXPECT_EQ(utf8(form.text.mText1.tag()), "");
        EXPECT_EQ(lost, 1) << "so that the input method lets go of its syllable";
        EXPECT_TRUE(form.text.mText1.has_focus());
        EXPECT_FALSE(form.text.mHLen3.visible());
        EXPECT_EQ(counter(), std::to_string(core::BYTE_LEN(row.cut)) + "Bytes");
        form.text.mText1.set_text(u"");
    }
}

TEST_F(LongMessages, AKeyEnforcesTheLimitWithoutAskingAndBackspaceDoesNot) {
    // Longer than 80 bytes without an answer, as a handler may find it.
    expect_question(BoxAnswer::yes);
    edit(form.text.mText1, letters(100));
    form.text.mText1.set_tag(u"");

    platform::KeyPressed backspace{platform::KEY_BACKSPACE};
    form.text.mText1.KeyPress.raise(backspace);
    EXPECT_EQ(form.text.mText1.text().size(), 100u);

    desktop.expect_box(tests::TEXT_IS_CUT);
    platform::KeyPressed key{u'b'};
    form.text.mText1.KeyPress.raise(key);
    EXPECT_FALSE(key.swallowed());
    EXPECT_EQ(utf8(form.text.mText1.text()), utf8(letters(80)));
}

// The text beside a voice message.

TEST_F(ShortTexts, EndAtEightyBytesWithoutAQuestion) {
    form.choose(compose::MessageKind::plus);
    edit(form.plus.mText2, syllables(40));
    desktop.expect_box(tests::TEXT_IS_CUT);
    form.plus.mText2.set_focus();
    form.plus.mText2.user_edit(syllables(41), 1);
    EXPECT_EQ(utf8(form.plus.mText2.text()), utf8(syllables(40)));
    EXPECT_EQ(form.plus.mText2.selection_start(), 40u);
    EXPECT_TRUE(form.plus.mText2.has_focus());
    EXPECT_EQ(utf8(form.plus.mHLen2.caption()), "80/80Byte");
    form.text.Check1.set_checked(true);
    desktop.expect_box(tests::TEXT_IS_CUT);
    edit(form.plus.mText2, letters(81));
}

TEST_F(ShortTexts, EveryKeyEnforcesTheLimitBackspaceToo) {
    // The subject changes before the text is cut, so a key that arrives at that moment finds the excess.
    std::size_t bytes_behind_the_key = 0;
    form.subject.subjectText.Change.connect([&] {
        if (bytes_behind_the_key != 0) return;
        platform::KeyPressed backspace{platform::KEY_BACKSPACE};
        form.plus.mText2.KeyPress.raise(backspace);
        bytes_behind_the_key = form.plus.mText2.text().size();
    });
    form.subject.subjectText.set_tag(u"");
    desktop.expect_box(tests::TEXT_IS_CUT);
    edit(form.plus.mText2, letters(81));
    EXPECT_EQ(bytes_behind_the_key, 80u);
}

// The text to be spoken.

TEST_F(SpokenTexts, EndAtAThousandBytesAndTheCaretStaysWhereItWas) {
    form.choose(compose::MessageKind::voice);
    edit(form.voice.ttsText, syllables(500));
    form.voice.ttsText.select(100, 0);
    desktop.expect_box(TTS_IS_CUT);
    form.voice.ttsText.paste(letters(3000));
    EXPECT_EQ(utf8(form.voice.ttsText.text()), utf8(syllables(100) + letters(800)));
    EXPECT_EQ(form.voice.ttsText.selection_start(), 900u) << "no further than the end";
    EXPECT_EQ(utf8(form.voice.TTSHLen.caption()), "1000/1000Byte");

    desktop.expect_box(TTS_IS_CUT);
    form.voice.ttsText.select(10, 0);
    form.voice.ttsText.paste(u"x");
    EXPECT_EQ(form.voice.ttsText.selection_start(), 11u);
    EXPECT_EQ(utf8(form.subject.subjectText.text()), "") << "a spoken text leads no subject";
}

// The subject.

TEST_F(Subject, FollowsTheTextWithoutLineEndsInFifteenCharacters) {
    edit(form.text.mText1, u"가\r\n나");
    EXPECT_EQ(utf8(form.subject.subjectText.text()), "가나");
    edit(form.text.mText1, u"12345678901234567890");
    EXPECT_EQ(utf8(form.subject.subjectText.text()), "123456789012345");
    edit(form.text.mText1, u"xyz");
    EXPECT_EQ(utf8(form.subject.subjectText.text()), "123456789012345") << "15 characters are enough";

    form.subject.subjectText.set_text(u"");
    edit(form.text.mText1, u"12345678901234 tail");
    EXPECT_EQ(utf8(form.subject.subjectText.text()), "12345678901234 ");
    edit(form.text.mText1, u"Y12345678901234 tail");
    EXPECT_EQ(utf8(form.subject.subjectText.text()), "12345678901234 ")
        << "it stands although a blank ends it";

    form.subject.subjectText.set_text(u"");
    edit(form.plus.mText2, u"12345678\r\n901234567890");
    EXPECT_EQ(utf8(form.subject.subjectText.text()), "12345678901234567890")
        << "the other text's subject is not cut";
    EXPECT_EQ(utf8(form.subject.subjectText.tag()), "END") << "and stands at once";
}

TEST_F(Subject, StopsFollowingWhenLongOrLeftAndFollowsAgainWhenEmptied) {
    edit(form.subject.subjectText, Text(15, u'가'));
    EXPECT_EQ(utf8(form.subject.subjectText.tag()), "");
    edit(form.subject.subjectText, Text(16, u'가'));
    EXPECT_EQ(utf8(form.subject.subjectText.tag()), "END");

    form.voice.Frame1.show();
    for (platform::TextBox* field : {&form.subject.subjectText, &form.text.mText1, &form.plus.mText2}) {
        SCOPED_TRACE(utf8(field->name()));
        edit(form.subject.subjectText, u"  ");
        field->set_focus();
        form.Command1.set_focus();
        EXPECT_EQ(utf8(form.subject.subjectText.tag()), "") << "an empty subject does not stand";
        edit(form.subject.subjectText, u"제목");
        field->set_focus();
        form.Command1.set_focus();
        edit(form.text.mText1, u"다른 글");
        EXPECT_EQ(utf8(form.subject.subjectText.text()), "제목");
        edit(form.subject.subjectText, u"");
        edit(form.text.mText1, u"또 다른 글");
        EXPECT_EQ(utf8(form.subject.subjectText.text()), "또 다른 글");
    }
}

TEST_F(Subject, AnEmptyOneIsFilledFromTheTextMessageOrWithAWordForUntitled) {
    const struct {
        compose::MessageKind kind;
        Text subject, text;
        const char* filled;
    } rows[] = {
        {compose::MessageKind::text, u"제목", u"본문", "제목"},
        {compose::MessageKind::text, u"", u" \r\n 본문\r\n둘째 줄 ", "본문둘째 줄"},
        {compose::MessageKind::text, u"", u"12345678901234567890", "123456789012345"},
        {compose::MessageKind::text, u"", u"\r\n\r\n", "제목없음"},
        {compose::MessageKind::voice, u"", u"본문", "제목없음"},
        {compose::MessageKind::voice, u"  ", u"본문", "제목없음"},
    };
    for (const auto& row : rows) {
        form.choose(row.kind);
        form.subject.subjectText.set_tag(u"END");
        form.text.mText1.set_text(row.text);
        form.subject.subjectText.set_text(row.subject);
        form.subjectText_CHECK();
        EXPECT_EQ(utf8(form.subject.subjectText.text()), row.filled);
    }
}

// Personalised messages.

TEST_F(Personalised, TheListOfFieldsFollowsTheTickAndUntickingALongTextAsks) {
    for (const BoxAnswer answer : {BoxAnswer::no, BoxAnswer::yes}) {
        form.text.Check1.set_checked(true);
        EXPECT_TRUE(form.text.Combo3.enabled() && form.text.Label1_4.visible());
        edit(form.text.mText1, letters(200));
        form.text.mText1.set_tag(u"LONG");
        expect_question(answer);
        form.text.Check1.set_checked(false);
        EXPECT_FALSE(form.text.Combo3.enabled() || form.text.Label1_4.visible());
        EXPECT_EQ(form.text.mText1.text().size(), answer == BoxAnswer::no ? 80u : 200u);
    }
}

TEST_F(Personalised, APlaceholderIsPastedAndStaysChosenInTheList) {
    form.text.Check1.set_checked(true);
    edit(form.text.mText1, u"님 안녕");
    form.text.mText1.select(0, 0);
    form.text.Combo3.set_list_index(1);
    EXPECT_EQ(utf8(form.text.mText1.text()), "{이름}님 안녕");
    EXPECT_EQ(utf8(desktop.clipboard), "{이름}");
    form.text.Combo3.set_list_index(0);
    form.text.Combo3.set_list_index(2);
    form.text.Combo3.set_list_index(2);
    EXPECT_EQ(utf8(form.text.mText1.text()), "{이름}{직위}{직위}님 안녕");
    EXPECT_EQ(form.text.Combo3.list_index(), 2);
}

TEST_F(Personalised, TheCharactersInsertedLastStandInFrontAlsoTheNextTime) {
    const auto shown = [](const compose::frmZent& window) {
        std::string captions;
        for (const platform::CommandButton& button : window.text.recent.Recent)
            if (button.visible()) captions += utf8(button.caption()) + " ";
        return captions;
    };
    EXPECT_EQ(shown(form), "");
    for (const std::size_t place : {4, 8, 4, 9, 10, 11, 12, 13}) form.text.mBttn1[place].Click.raise();
    EXPECT_EQ(shown(form), "♣ ♠ ♤ ◀ ▶ ♡ ") << "those that stand there stay";
    form.text.mText1.set_text(u"");
    form.text.recent.Recent[2].Click.raise();
    EXPECT_EQ(utf8(form.text.mText1.text()), "♤");
    compose::frmZent later(platform, state, {});
    EXPECT_EQ(shown(later), "");
    later.choose(compose::MessageKind::text);
    EXPECT_EQ(shown(later), shown(form));
}

// Sender and reply number.

TEST_F(SenderName, ANewOneReplacesTheOldOneInTheTextAndIsSaved) {
    const struct {
        compose::MessageKind kind;
        const char16_t* name;
        const char* text;
    } rows[] = {
        {compose::MessageKind::text, u" 이순신 ", "[ 이순신 ] 글 [ 이순신 ]"},
        {compose::MessageKind::text, u"", "[홍길동] 글 [홍길동]"},
        {compose::MessageKind::fax, u"이순신", "[홍길동] 글 [홍길동]"},
    };
    state.sender.gSavedSenderName = u"홍길동";
    for (const auto& row : rows) {
        form.choose(row.kind);
        form.sender.txtUserName.show();
        form.sender.txtUserName.set_text(u"홍길동");
        form.text.mText1.set_text(u"[홍길동] 글 [홍길동]");
        form.sender.txtUserName.set_focus();
        form.sender.txtUserName.user_edit(row.name);
        form.Command1.set_focus();
        EXPECT_EQ(utf8(form.text.mText1.text()), row.text);
        EXPECT_EQ(setting(u"SET", u"ZentUserNickName"), utf8(platform::trim(row.name)));
    }
    form.choose(compose::MessageKind::text);
    form.sender.txtCallback.set_focus();
    form.sender.txtCallback.user_edit(u" 0311234567 ");
    form.Command1.set_focus();
    EXPECT_EQ(setting(u"SET", u"ZentUserPhoneID"), "0311234567");
}

}  // namespace
