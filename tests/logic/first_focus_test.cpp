// Where the focus is after each thing that the user does: where the user goes on writing.

#include "tests/support/main_window.h"
#include "tests/support/sending.h"

#include <gtest/gtest.h>

namespace {

using compose::MessageKind;

struct FirstFocus : testing::Test, tests::MainWindow {
    FirstFocus() { compose_as(u"홍길동"); }

    std::string focused() const {
        return form.focused() == nullptr ? "nothing" : utf8(form.focused()->name());
    }
    static std::string utf8(const platform::Text& text) { return platform::to_utf8(text); }
};

TEST_F(FirstFocus, IsTheContentOfTheKindAndStaysOnTabsThatArrowsChoose) {
    const struct {
        MessageKind kind;
        int source;
        const char* focused;
    } cases[] = {{MessageKind::text, 0, "mText1"},  {MessageKind::plus, 0, "mText2"},
                 {MessageKind::plus, 1, "ttsText"}, {MessageKind::voice, 0, "ttsText"},
                 {MessageKind::voice, 2, "RFK1"},   {MessageKind::voice, 3, "TTSBttn1"},
                 {MessageKind::fax, 0, "FAXBttn1"}};
    for (const auto& c : cases) {
        form.choose(c.kind);
        if (c.source > 0) form.voice.TabStrip2.select(c.source);
        EXPECT_EQ(focused(), c.focused);
    }
    EXPECT_EQ(form.plus.mText2.selection_start(), 5U) << "behind the sender, before the line about the call";
    form.TabStrip1.set_focus();
    form.TabStrip1.user_select(2);
    form.voice.TabStrip2.set_focus();
    form.voice.TabStrip2.user_select(2);
    EXPECT_EQ(focused(), "TabStrip2");
}

TEST_F(FirstFocus, IsTheTextBehindWhatIsThereAfterEachStep) {
    const struct {
        const char* name;
        std::function<void()> act;
    } steps[] = {
        {"an emoticon", [&] { form.text.mBttn1.front().Click.raise(); }},
        {"a placeholder", [&] { form.text.Combo3.user_choose(1); }},
        {"the box of saved texts", [&] { form.text.MyMsgBttn.Click.raise(); }},
        {"a new draft",
         [&] {
             desktop.expect_box({.text = u"모든 내용을 삭제하고 새로 작성하시겠습니까?",
                                 .icon = platform::BoxIcon::question,
                                 .buttons = platform::BoxButtons::yes_no,
                                 .default_answer = platform::BoxAnswer::no},
                                platform::BoxAnswer::yes);
             form.Command3.Click.raise();
         }},
        {"a login", [&] { form.session.LoggedIn.raise(); }},
    };
    for (const auto& step : steps) {
        SCOPED_TRACE(step.name);
        form.Command1.set_focus();
        step.act();
        EXPECT_EQ(focused(), "mText1");
        EXPECT_EQ(form.text.mText1.selection_start(), form.text.mText1.text().size());
    }
}

TEST_F(FirstFocus, InTheTextFixesNoSubjectAndTheKeyOfTheChosenKindEmptiesNothing) {
    form.choose(MessageKind::text);
    form.subject.subjectText.set_text(u"지난 제목");
    form.subject.follow_again();
    form.recipients.HText1[0].set_focus();
    form.text.mText1.set_focus();
    form.text.mText1.user_edit(u"새 글", 3);
    EXPECT_EQ(utf8(form.subject.subjectText.text()), "새 글");
    form.recipients.HText1[0].set_focus();
    form.Toolbar1.ButtonClick.raise(compose::FIRST_KIND_BUTTON);
    EXPECT_EQ(utf8(form.text.mText1.text()), "새 글");
    EXPECT_EQ(focused(), "mText1");
}

TEST_F(FirstFocus, IsTheListAfterPickingUnlessNobodyWasPicked) {
    form.Command1.set_focus();
    form.recipients.Command7.Click.raise();
    EXPECT_EQ(focused(), "Command1");
    pick_recipients = [this] { form.recipients.add(u"김", u"01012345678", u""); };
    form.recipients.Command7.Click.raise();
    EXPECT_EQ(focused(), "ListView1");
}

TEST(FirstFocusOfASender, IsTheNameOfTheNextRecipient) {
    tests::Sending draft;
    draft.form.Command1.set_focus();
    draft.desktop.expect_box(tests::refusal(u"받는사람을 입력하여 주십시오!"));
    draft.form.Command1.Click.raise();
    EXPECT_TRUE(draft.form.recipients.HText1[0].has_focus());
}

}  // namespace
