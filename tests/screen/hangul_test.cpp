#include "machine/qt/typing/conversion.h"
#include "machine/qt/widgets/multiline_edit.h"
#include "tests/screen/screen_fixture.h"

#include <QAction>
#include <QLineEdit>
#include <QPushButton>

namespace tests {
namespace {

using platform::Text;

/// Types into the message field and records its Change events.
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

    QString shown() { return edit().committed_text(); }
    machine::qt::MultilineEdit& edit() { return find<machine::qt::MultilineEdit>("mText1"); }

    std::vector<Text> changes;
    std::function<void()> on_change = [] {};
};

TEST_F(HangulTest, OnlyCommittedSyllablesAreTextAndEachRaisesOneChange) {
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

TEST_F(HangulTest, AfterACutTheNextSyllableStartsAnew) {
    on_change = [this] {
        if (form.mText1.text().size() <= 2) return;
        form.mText1.set_text(form.mText1.text().substr(0, 2));
        form.mText1.set_caret_to_end();
        form.Picture2.set_focus();
    };
    compose("가나다", "ㄹ");
    EXPECT_EQ(shown(), "가나");
    // An input method that was reset may still commit what it had.
    compose("ㄹ", "");
    EXPECT_EQ(shown(), "가나");
    QTest::keyClick(&edit(), Qt::Key_Backspace);
    compose("", "ㄹ");
    compose("ㄹ", "");
    EXPECT_EQ(shown(), "가ㄹ");
}

TEST_F(HangulTest, AKeyOrClickDuringACompositionActsOnceOnTheFinishedText) {
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

TEST_F(HangulTest, AnInputMethodThatCommitsLateCountsAsAnEditAfterTheHandlers) {
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

TEST_F(HangulTest, SettingAnotherTextEndsTheComposition) {
    compose("가", "ㄴ");
    form.mText1.set_text(u"다른 글");
    compose("ㄴ", "");
    EXPECT_EQ(shown(), "다른 글");
    // Setting the same text again changes nothing.
    compose("", "ㄷ");
    form.mText1.set_text(u"다른 글");
    compose("다", "");
    EXPECT_EQ(shown(), "다다른 글");
}

TEST_F(HangulTest, AClickIntoTheFieldKeepsTheSyllable) {
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

TEST_F(HangulTest, OneLineFieldsAndEditableListsBehaveTheSame) {
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
