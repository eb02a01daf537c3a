#include "machine/qt/typing/conversion.h"
#include "machine/qt/widgets/multiline_edit.h"
#include "tests/screen/screen_fixture.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>

namespace tests {
namespace {

using platform::KeyPressed;
using platform::Text;

TEST(TextConversionTest, PositionsAgreeAcrossEverySortOfLineEnd) {
    struct Case {
        Text program;
        QString shown;
        std::vector<std::pair<std::size_t, int>> places;
    };
    for (const Case& c : std::vector<Case>{
             {u"", "", {{0, 0}}},
             {u"가\r\n나", "가\n나", {{0, 0}, {1, 1}, {3, 2}, {4, 3}}},
             {u"\r\n\r\n", "\n\n", {{0, 0}, {2, 1}, {4, 2}}},
             {u"a\nb\rc", "a\nb\nc", {{1, 1}, {2, 2}, {3, 3}, {4, 4}, {5, 5}}},
             {u"a\u2028b\u2029", "a\nb\n", {{2, 2}, {4, 4}}},
             {u"\U0001F600\r\n", "\U0001F600\n", {{2, 2}, {4, 3}}},
         }) {
        SCOPED_TRACE(c.shown.toStdString());
        EXPECT_EQ(machine::qt::shown_text(c.program), c.shown);
        for (const auto& [program, shown] : c.places) {
            EXPECT_EQ(machine::qt::shown_position(c.program, program), shown);
            EXPECT_EQ(machine::qt::program_position(c.program, shown), program);
        }
    }
    EXPECT_EQ(machine::qt::shown_position(u"가\r\n나", 2), 1) << "between CR and LF is before the line end";
    EXPECT_EQ(machine::qt::program_text(QString("a\u2029b\rc\r\nd") + QChar(u'\0')), u"a\r\nb\r\nc\r\nd");
}

class TextFieldTest : public ScreenTest {
  protected:
    void SetUp() override {
        ScreenTest::SetUp();
        form.mText1.set_focus();
        form.mText1.Change.connect([this] { changes.push_back(form.mText1.text()); });
        form.mText1.KeyPress.connect([this](KeyPressed& key) {
            codes.push_back(key.code);
            on_key(key);
        });
    }

    machine::qt::MultilineEdit& edit() { return find<machine::qt::MultilineEdit>("mText1"); }

    std::vector<Text> changes;
    std::vector<int> codes;
    std::function<void(KeyPressed&)> on_key = [](KeyPressed&) {};
};

TEST_F(TextFieldTest, KeysRaiseAKeyPressAndThenAChangeWithTheProgramsCaret) {
    QTest::keyClicks(&edit(), "ab");
    QTest::keyClick(&edit(), Qt::Key_Return);
    QTest::keyClick(&edit(), Qt::Key_C);
    EXPECT_EQ(form.mText1.text(), u"ab\r\nc");
    EXPECT_EQ(form.mText1.selection_start(), 5u);
    QTest::keyClick(&edit(), Qt::Key_Left);
    EXPECT_EQ(form.mText1.selection_start(), 4u);
    QTest::keyClick(&edit(), Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(form.mText1.selection_start(), 2u);
    EXPECT_EQ(form.mText1.selection_length(), 2u);
    QTest::keyClick(&edit(), Qt::Key_Backspace);
    EXPECT_EQ(form.mText1.text(), u"abc");
    EXPECT_EQ(form.mText1.selection_start(), 2u);
    QTest::keyClick(&edit(), Qt::Key_Delete);
    EXPECT_EQ(codes, (std::vector<int>{'a', 'b', platform::KEY_ENTER, 'c', platform::KEY_BACKSPACE}));
    QTest::keyClick(&edit(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(form.mText1.text(), u"abc") << "undo is an edit like others";
    EXPECT_EQ(changes.size(), 7u);
}

TEST_F(TextFieldTest, ASwallowedKeyChangesNothingAndACutInItsHandlerStays) {
    QTest::keyClicks(&edit(), "abc");
    on_key = [](KeyPressed& key) { key.swallow(); };
    QTest::keyClicks(&edit(), "d");
    EXPECT_EQ(form.mText1.text(), u"abc");
    on_key = [this](KeyPressed&) {
        form.mText1.set_text(u"a");
        form.mText1.set_caret_to_end();
        form.Picture2.set_focus();
    };
    QTest::keyClick(&edit(), Qt::Key_E);
    EXPECT_EQ(form.mText1.text(), u"ae");
    EXPECT_EQ(edit().committed_text(), "ae");
}

TEST_F(TextFieldTest, APasteIsPlainTextAndOneChangeWithoutAKeyPress) {
    auto* rich = new QMimeData;
    rich->setHtml("<b>가</b><br>나");
    rich->setText(QString("가\r나\u2028다\r\n") + QChar(u'\0') + "라");
    QGuiApplication::clipboard()->setMimeData(rich);
    edit().paste();
    settle();
    EXPECT_EQ(changes, std::vector<Text>{u"가\r\n나\r\n다\r\n라"});
    EXPECT_EQ(form.mText1.selection_start(), form.mText1.text().size());
    EXPECT_TRUE(codes.empty());

    form.HText1.set_focus();
    auto& line = find<QLineEdit>("HText1_0");
    QTest::keyClick(&line, Qt::Key_V, Qt::ControlModifier);
    settle();
    EXPECT_EQ(form.HText1.text(), u"가나다라") << "one line has no line ends";
    QTest::keyClick(&line, Qt::Key_Z, Qt::ControlModifier);
    settle();
    EXPECT_EQ(form.HText1.text(), u"") << "and none comes back when the paste is taken back";
}

TEST_F(TextFieldTest, LinesThatAFieldOfOneLineHasAHandlerForNeverEnterIt) {
    auto& field = find<QLineEdit>("HText1_0");
    std::vector<Text> lines;
    form.HText1.LinesPasted.connect([&](const Text& pasted) { lines.push_back(pasted); });
    form.HText1.set_focus();
    QTest::keyClicks(&field, "Kim");
    const auto press = [&](Qt::Key key) {
        QTest::keyClick(&field, key, Qt::ControlModifier);
        settle();
        settle();
    };
    const auto paste_from_menu = [&] {
        QContextMenuEvent asked(QContextMenuEvent::Keyboard, QPoint(1, 1), field.mapToGlobal(QPoint(1, 1)));
        QCoreApplication::sendEvent(&field, &asked);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        for (QAction* action : menu->actions())
            if (action->text().startsWith(QLineEdit::tr("&Paste"))) action->trigger();
        menu->close();
        settle();
        settle();
    };
    QString many;
    for (int i = 0; i < 5000; ++i) many += QString("홍길동\t010-1234-%1\n").arg(i, 4, 10, QChar(u'0'));
    QGuiApplication::clipboard()->setText(many);
    press(Qt::Key_V);
    paste_from_menu();
    QMimeData dragged;
    dragged.setText(many);
    QDragEnterEvent enter(QPoint(1, 1), Qt::MoveAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&field, &enter);
    QDropEvent drop(QPointF(1, 1), Qt::CopyAction | Qt::MoveAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&field, &drop);
    settle();
    EXPECT_TRUE(lines == std::vector<Text>(3, machine::qt::program_text(many)));
    EXPECT_EQ(drop.dropAction(), Qt::CopyAction) << "the other program keeps its text";
    press(Qt::Key_Z);
    EXPECT_EQ(form.HText1.text(), u"") << "the user takes back what he typed";
    EXPECT_EQ(lines.size(), 3u);

    QGuiApplication::clipboard()->setText("01012345678\n");
    press(Qt::Key_V);
    paste_from_menu();
    EXPECT_EQ(form.HText1.text(), u"0101234567801012345678") << "a single cell is no table";
    EXPECT_EQ(lines.size(), 3u);
}

TEST_F(TextFieldTest, TextAndSelectionSetInCodeShowAndRaiseOneChange) {
    form.mText1.set_text(u"가\r\n나다");
    EXPECT_EQ(edit().committed_text(), "가\n나다");
    EXPECT_EQ(edit().textCursor().position(), 0);
    form.mText1.select(3, 1);
    EXPECT_EQ(edit().textCursor().selectedText(), "나");
    settle();
    form.mText1.paste(u"☎");
    EXPECT_EQ(edit().committed_text(), "가\n☎다");
    EXPECT_EQ(edit().textCursor().position(), 3);
    settle();
    EXPECT_EQ(changes, (std::vector<Text>{u"가\r\n나다", u"가\r\n☎다"}));
}

TEST_F(TextFieldTest, WhatCodeWritesAtOnceIsOneStepToTakeBackAndToRedo) {
    const auto press = [](const char* field, Qt::Key key) {
        QTest::keyClick(&find(field), key, Qt::ControlModifier);
        settle();
    };
    QTest::keyClicks(&edit(), "ab");
    form.mText1.set_text(u"");
    form.mText1.set_text(u"[길동]");
    settle();
    press("mText1", Qt::Key_Z);
    EXPECT_EQ(form.mText1.text(), u"ab");
    press("mText1", Qt::Key_Y);
    EXPECT_EQ(form.mText1.text(), u"[길동]");
    form.mText1.Change.connect([this] { form.mText1.set_text(form.mText1.text().substr(0, 5)); });
    edit().selectAll();
    edit().insertPlainText("하나둘셋넷다섯");
    settle();
    EXPECT_EQ(edit().committed_text(), "하나둘셋넷") << "a handler cuts";
    press("mText1", Qt::Key_Z);
    EXPECT_EQ(form.mText1.text(), u"[길동]") << "not the text that was too long";

    form.HText1.set_focus();
    QTest::keyClicks(&find("HText1_0"), "Kim");
    form.HText1.set_text(u"");
    settle();
    press("HText1_0", Qt::Key_Z);
    EXPECT_EQ(form.HText1.text(), u"Kim");
    press("HText1_0", Qt::Key_Y);
    EXPECT_EQ(form.HText1.text(), u"");
}

TEST_F(TextFieldTest, MarksWhatCannotBeSent) {
    edit().setProperty("marks_lost", true);
    form.mText1.set_text(u"가\r\n나\U0001F600다☎\u2764");
    ASSERT_EQ(edit().extraSelections().size(), 2);
    EXPECT_EQ(edit().extraSelections()[0].cursor.selectedText(), "\U0001F600");
    EXPECT_EQ(edit().extraSelections()[1].cursor.selectionStart(), 7);
    form.mText1.set_text(u"가");
    EXPECT_TRUE(edit().extraSelections().isEmpty());
}

TEST_F(TextFieldTest, AHandlerThatSetsTheTextAgainWins) {
    form.mText1.Change.connect([this] {
        if (form.mText1.text() == u"x") form.mText1.set_text(u"y");
    });
    QTest::keyClicks(&edit(), "x");
    EXPECT_EQ(edit().committed_text(), "y");
    QTest::keyClick(&edit(), Qt::Key_End);
    QTest::keyClicks(&edit(), "z");
    EXPECT_EQ(form.mText1.text(), u"yz");
}

TEST_F(TextFieldTest, EnterInAOneLineFieldGoesToItsHandler) {
    auto& field = find<QLineEdit>("HText1_0");
    form.HText1.KeyPress.connect([this](KeyPressed& key) {
        if (key.code != platform::KEY_ENTER) return;
        form.ListView1.add_row(u"", {form.HText1.text()});
        form.HText1.set_text(u"");
        form.mText1.set_focus();
    });
    form.HText1.set_focus();
    QTest::keyClicks(&field, "010");
    EXPECT_EQ(form.HText1.selection_start(), 3u);
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(form.ListView1.row(0).sub_item(1), u"010");
    EXPECT_EQ(field.text(), "");
    EXPECT_EQ(QApplication::focusWidget(), &edit());
}

}  // namespace
}  // namespace tests
