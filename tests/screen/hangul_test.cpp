#include "machine/qt/typing/conversion.h"
#include "machine/qt/widgets/message_edit.h"
#include "platform/text/cp949.h"
#include "tests/screen/screen_fixture.h"

#include <QAction>
#include <QLineEdit>
#include <QPushButton>

namespace tests {
namespace {

using platform::BoxAnswer;
using platform::Text;

/// Typing into the message field, whose Change handler is written down.
class HangulTest : public ScreenTest {
  protected:
    void SetUp() override {
        ScreenTest::SetUp();
        form.mText1.set_focus();
        form.mText1.Change.connect([this] {
            changes.push_back(form.mText1.text());
            on_change();
        });
    }

    void cut_to(std::size_t bytes) {
        Text text = form.mText1.text();
        while (platform::cp949_length(text) > bytes) text.pop_back();
        form.mText1.set_text(text);
        form.mText1.set_caret_to_end();
        form.Picture2.set_focus();
    }

    /// The main window's rule: more than 80 bytes are asked about, and on No are cut, each time with a bounce
    /// of the focus.
    void ask_beyond_80_bytes() {
        on_change = [this] {
            if (platform::cp949_length(form.mText1.text()) <= 80 || agreed) return;
            agreed = desktop.message_box(
                         {.text = u"80?", .title = u"", .buttons = platform::BoxButtons::yes_no}) ==
                     BoxAnswer::yes;
            if (!agreed) return cut_to(80);
            form.mText1.set_caret_to_end();
            form.Picture2.set_focus();
        };
    }

    QString shown() { return edit().committed_text(); }
    machine::qt::MessageEdit& edit() { return find<machine::qt::MessageEdit>("mText1"); }

    std::vector<Text> changes;
    std::function<void()> on_change = [] {};
    bool agreed = false;
};

TEST_F(HangulTest, only_committed_syllables_are_text_and_each_is_one_change) {
    compose("", "ㅎ");
    compose("", "하");
    compose("", "한");
    EXPECT_TRUE(changes.empty());
    compose("한", "ㄱ");
    compose("", "그");
    compose("", "글");
    compose("글", "");
    EXPECT_EQ(changes, (std::vector<Text>{u"한", u"한글"}));
    EXPECT_EQ(shown(), "한글");
    EXPECT_EQ(form.mText1.selection_start(), 2u);
}

TEST_F(HangulTest, a_cut_in_the_change_handler_takes_the_excess_alone) {
    on_change = [this] {
        if (platform::cp949_length(form.mText1.text()) > 80) cut_to(80);
    };
    struct Case {
        const char* name;
        Text before;
        const char* commit;
        const char* unfinished;
        Text after;
    };
    const Text forty(40, u'가');
    const Text thirty_nine(39, u'가');
    for (const Case& c : std::vector<Case>{
             {"the syllable fits", thirty_nine, "한", "", thirty_nine + u"한"},
             {"the syllable fits and the next is begun", thirty_nine, "한", "ㄱ", thirty_nine + u"한"},
             {"the syllable is too much", forty, "한", "", forty},
             {"the syllable is too much and the next is begun", forty, "한", "ㄱ", forty},
             {"half of it would fit", thirty_nine + u"a", "한", "ㄱ", thirty_nine + u"a"},
         }) {
        SCOPED_TRACE(c.name);
        form.mText1.set_text(c.before);
        form.mText1.set_caret_to_end();
        compose("", "하");
        compose(c.commit, c.unfinished);
        settle();
        EXPECT_EQ(form.mText1.text(), c.after);
        EXPECT_EQ(shown(), machine::qt::to_qstring(c.after));
        EXPECT_EQ(form.mText1.selection_start(), c.after.size());
        EXPECT_EQ(QApplication::focusWidget(), &edit());
        compose("", "");
        form.mText1.set_text(u"");
    }
}

TEST_F(HangulTest, after_a_cut_the_next_syllable_starts_anew) {
    on_change = [this] {
        if (form.mText1.text().size() > 2) cut_to(4);
    };
    compose("가나다", "ㄹ");
    EXPECT_EQ(shown(), "가나");
    // An input method that was told to start anew may still commit what it had.
    compose("ㄹ", "");
    EXPECT_EQ(shown(), "가나");
    QTest::keyClick(&edit(), Qt::Key_Backspace);
    compose("", "ㄹ");
    compose("ㄹ", "");
    EXPECT_EQ(shown(), "가ㄹ");
}

TEST_F(HangulTest, the_question_about_a_long_text_neither_loses_nor_doubles_a_syllable) {
    struct Case {
        const char* name;
        QMessageBox::StandardButton answer;
        const char* unfinished;
        Text after;
    };
    const Text forty(40, u'가');
    for (const Case& c : std::vector<Case>{
             {"yes", QMessageBox::Yes, "", forty + u"한"},
             {"yes, with the next syllable begun", QMessageBox::Yes, "ㄱ", forty + u"한ㄱ"},
             {"no", QMessageBox::No, "", forty},
             {"no, with the next syllable begun", QMessageBox::No, "ㄱ", forty},
         }) {
        SCOPED_TRACE(c.name);
        on_change = [] {};
        agreed = false;
        form.mText1.set_text(forty);
        form.mText1.set_caret_to_end();
        ask_beyond_80_bytes();
        boxes.answers = {c.answer};
        boxes.asked.clear();
        compose("한", c.unfinished);
        settle();
        EXPECT_EQ(boxes.asked.size(), 1u);
        EXPECT_EQ(form.mText1.text(), c.after);
        EXPECT_EQ(shown(), machine::qt::to_qstring(c.after));
        EXPECT_EQ(form.mText1.selection_start(), c.after.size());
        EXPECT_EQ(QApplication::focusWidget(), &edit());
        form.mText1.set_focus();
        EXPECT_TRUE(form.mText1.has_focus());
    }
}

TEST_F(HangulTest, what_is_pressed_in_mid_composition_acts_once_on_the_finished_text) {
    std::vector<Text> seen;
    const auto note = [&] { seen.push_back(form.mText1.text()); };
    form.Command1.Click.connect(note);
    form.Check1.Click.connect(note);
    form.TabStrip1.Click.connect(note);
    form.mnuAuto.Click.connect(note);
    form.Toolbar1.ButtonClick.connect([&](int) { note(); });
    form.mText1.LostFocus.connect([&] { EXPECT_EQ(form.mText1.text(), u"하"); });
    const auto trigger = [](const char* action) {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (auto* found = window->findChild<QAction*>(action)) found->trigger();
        }
    };
    const std::vector<std::pair<const char*, std::function<void()>>> ways{
        {"a button by the mouse", [&] { QTest::mouseClick(&find("Command1"), Qt::LeftButton); }},
        {"a button by its key",
         [&] {
             find<QPushButton>("Command1").animateClick();
             QTest::qWait(150);
         }},
        {"a check box",
         [&] {
             QTest::mouseClick(&find("Check1"), Qt::LeftButton, {}, QPoint(8, find("Check1").height() / 2));
         }},
        {"a tab", [&] { QTest::mouseClick(&find("TabStrip1"), Qt::LeftButton, {}, QPoint(8, 8)); }},
        {"a menu item", [&] { trigger("mnuAuto"); }},
        {"a tool button", [&] { trigger("Toolbar1_2"); }},
    };
    for (const auto& [name, press] : ways) {
        SCOPED_TRACE(name);
        seen.clear();
        form.mText1.set_text(u"");
        form.mText1.set_focus();
        compose("", "하");
        press();
        EXPECT_EQ(seen, std::vector<Text>{u"하"});
        EXPECT_EQ(shown(), "하");
    }
}

TEST_F(HangulTest, an_input_method_that_commits_late_counts_as_an_edit_after_the_handlers) {
    form.mText1.set_text(u"가");
    form.mText1.set_caret_to_end();
    changes.clear();
    bool rewrite = false;
    on_change = [&] {
        if (changes.size() != 1) return;
        if (rewrite) form.mText1.set_text(u"새");
        boxes.answers = {QMessageBox::Ok};
        boxes.meanwhile = [this] {
            QInputMethodEvent event;
            event.setCommitString("다");
            QCoreApplication::sendEvent(&edit(), &event);
        };
        desktop.message_box({.text = u"?", .title = u""});
    };
    compose("나", "");
    EXPECT_EQ(changes, (std::vector<Text>{u"가나", u"가나다"}));
    EXPECT_EQ(shown(), "가나다");
    settle();

    form.mText1.set_text(u"가");
    form.mText1.set_caret_to_end();
    changes.clear();
    rewrite = true;
    compose("나", "");
    EXPECT_EQ(form.mText1.text(), u"새");
    EXPECT_EQ(shown(), "새");
}

TEST_F(HangulTest, setting_another_text_in_mid_composition_ends_it) {
    compose("가", "ㄴ");
    form.mText1.set_text(u"다른 글");
    compose("ㄴ", "");
    EXPECT_EQ(shown(), "다른 글");
    // The same text again touches nothing.
    compose("", "ㄷ");
    form.mText1.set_text(u"다른 글");
    compose("다", "");
    EXPECT_EQ(shown(), "다다른 글");
}

TEST_F(HangulTest, a_click_into_the_field_keeps_the_syllable) {
    form.mText1.set_text(u"가나");
    form.mText1.set_caret_to_end();
    compose("", "다");
    QTest::mouseClick(edit().viewport(), Qt::LeftButton, {}, QPoint(1, 8));
    EXPECT_EQ(shown(), "가나다");
    EXPECT_EQ(form.mText1.text(), u"가나다");
    EXPECT_EQ(form.mText1.selection_start(), 0u);

    form.HText1.set_focus();
    compose("", "한");
    QTest::mouseClick(&find("HText1_0"), Qt::LeftButton);
    settle();
    EXPECT_EQ(form.HText1.text(), u"한");
}

TEST_F(HangulTest, one_line_fields_and_editable_boxes_follow_the_same_order) {
    form.HText1.set_focus();
    std::vector<Text> texts;
    form.HText1.Change.connect([&] {
        texts.push_back(form.HText1.text());
        if (form.HText1.text().size() > 2) form.HText1.set_text(form.HText1.text().substr(0, 2));
    });
    compose("", "하");
    EXPECT_TRUE(texts.empty());
    compose("한", "ㄱ");
    compose("글", "");
    EXPECT_EQ(form.HText1.text(), u"한글");
    compose("말", "ㅅ");
    settle();
    EXPECT_EQ(form.HText1.text(), u"한글");
    EXPECT_EQ(find<QLineEdit>("HText1_0").text(), "한글");

    form.txtUserName.set_focus();
    int changed = 0;
    form.txtUserName.Change.connect([&] { ++changed; });
    compose("", "하");
    EXPECT_EQ(changed, 0);
    compose("한", "ㄱ");
    EXPECT_EQ(form.txtUserName.text(), u"한");
    QTest::mouseClick(&find("Command1"), Qt::LeftButton);
    EXPECT_EQ(form.txtUserName.text(), u"한ㄱ");
    EXPECT_EQ(changed, 2);
}

}  // namespace
}  // namespace tests
