// Somebody types without looking at the screen, and a box opens in the middle of it.

#include "compose/main_form.h"
#include "machine/qt/widgets/multiline_edit.h"
#include "tests/screen/screen_fixture.h"
#include "tests/support/utf8.h"
#include "tests/support/windows_on_doubles.h"

#include <QPushButton>
#include <utility>

namespace tests {
namespace {

class TypingIntoBoxes : public DeskTest {
  protected:
    TypingIntoBoxes() {
        form.show();
        settle();
        form.choose(compose::MessageKind::text);
        settle();
    }
    ~TypingIntoBoxes() override {
        form.unload();
        settle();
    }

    /// As the keys arrive: wherever the focus is, a line end presses Enter, Hangul comes from an input
    /// method.
    static void type(const QString& keys) {
        for (const QChar key : keys) {
            QWidget* box = QApplication::activeModalWidget();
            QWidget* receiver = box != nullptr ? box->focusWidget() : QApplication::focusWidget();
            ASSERT_NE(receiver, nullptr);
            if (key.unicode() < 128) {
                key == u'\n' ? QTest::keyClick(receiver, Qt::Key_Return)
                             : QTest::keyClick(receiver, key.toLatin1());
            } else {
                QInputMethodEvent syllable;
                syllable.setCommitString(key);
                QCoreApplication::sendEvent(receiver, &syllable);
            }
        }
    }
    /// Types into the next box, then once more after a pause; the box is still there afterwards and gets that
    /// answer.
    void type_into_next(const char* keys, QMessageBox::StandardButton answer, const char* later = "") {
        boxes.answers = {answer};
        boxes.meanwhile = [keys, later, is_next = true]() mutable {
            if (!std::exchange(is_next, false)) return;
            const auto* box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget());
            type(keys);
            QTest::keyClick(box->focusWidget(), Qt::Key_Escape);
            EXPECT_TRUE(*later == 0 || QTest::qWaitFor([&] { return box->defaultButton()->hasFocus(); }));
            type(later);
            EXPECT_TRUE(box->isVisible()) << "answered by what was typed";
        };
    }

    BoxPlayer boxes;
    WindowsOnDoubles windows;
    compose::frmZent form{windows.platform, windows.state, {}};
};

TEST_F(TypingIntoBoxes, ALongTextIsAgreedToByNoBlankAndLosesNoLetter) {
    const platform::Text before(79, u'a');
    for (const auto answer : {QMessageBox::Yes, QMessageBox::No}) {
        form.text.mText1.set_text(before);
        form.text.mText1.set_caret_to_end();
        form.text.mText1.set_focus();
        settle();
        type_into_next("reen n\n한", answer, "  ");
        if (answer == QMessageBox::No) boxes.answers.push_back(QMessageBox::Ok);
        type("sc");
        settle();
        EXPECT_EQ(utf8(form.text.mText1.text()),
                  utf8(before) + (answer == QMessageBox::Yes ? "screen n\r\n한" : "s"));
    }
}

TEST_F(TypingIntoBoxes, ARefusedNumberComesBackSelectedAndIsNotMixedWithWhatFollows) {
    form.recipients.HText1[0].set_focus();
    settle();
    type_into_next("김철수\n010-2222-3333\n", QMessageBox::Ok);
    type("Hong\n010-1234\n");
    EXPECT_TRUE(form.recipients.HText1[1].has_focus());
    EXPECT_EQ(form.recipients.HText1[1].selection_length(), 7U);
    settle();
    EXPECT_EQ(utf8(form.recipients.HText1[1].text()), "김철수") << "what was to be typed after the Enter";
    type("010-1234-5678\n");
    EXPECT_EQ(utf8(form.recipients.ListView1.row(0).sub_item(compose::RECIPIENT_NUMBER)), "01012345678");
    EXPECT_EQ(form.recipients.ListView1.row_count(), 1U);
}

TEST_F(TypingIntoBoxes, OnceTheUserHasPausedKeysAnswer) {
    boxes.meanwhile = [] {
        auto& box = dynamic_cast<QMessageBox&>(*QApplication::activeModalWidget());
        type("x\n");
        ASSERT_TRUE(QTest::qWaitFor([&] { return box.defaultButton()->hasFocus(); }));
        QTest::keyClick(box.focusWidget(), Qt::Key_Y);
        QTest::keyClick(box.focusWidget(), Qt::Key_N);
        EXPECT_TRUE(box.isVisible()) << "letters press a button with Alt only";
        QTest::keyClick(box.focusWidget(), Qt::Key_Return);
        EXPECT_FALSE(box.isVisible());
    };
    EXPECT_EQ(windows.desktop.message_box({.text = u"?",
                                           .buttons = platform::BoxButtons::yes_no,
                                           .default_answer = platform::BoxAnswer::yes}),
              platform::BoxAnswer::yes);
}

TEST_F(TypingIntoBoxes, ASecondEnterOnTheConfirmationStopsNoJob) {
    const auto window = windows.screens.build(u"frmZentSend");
    auto& stop = *window->findChild<QPushButton*>("Command1");
    int stops = 0;
    QObject::connect(&stop, &QPushButton::clicked, [&] { ++stops; });
    window->show();
    settle();
    ASSERT_NE(window->focusWidget(), nullptr);
    QTest::keyClick(window->focusWidget(), Qt::Key_Return);
    QTest::keyClick(window->focusWidget(), Qt::Key_Space);
    EXPECT_EQ(stops, 0);
    QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
    QTest::keyClick(window->focusWidget(), Qt::Key_Space);
    EXPECT_EQ(stops, 1);
}

}  // namespace
}  // namespace tests
