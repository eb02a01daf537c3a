#include "machine/qt/binders/screen_faults.h"
#include "machine/qt/desktop/long_work.h"
#include "machine/qt/desktop/qt_application.h"
#include "machine/qt/desktop/qt_clock.h"
#include "tests/screen/screen_fixture.h"

#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QScreen>
#include <QTimer>

namespace tests {
namespace {

using platform::BoxAnswer;
using platform::BoxButtons;

using WindowTest = ScreenTest;

TEST_F(WindowTest, FormAndWindowKeepEachOtherUpToDate) {
    auto& window = find("_centre");
    QWidget& frame = *window.window();
    ASSERT_TRUE(QTest::qWaitFor([&] { return form.activations > 0; }));
    settle();
    EXPECT_EQ(form.activations, 1) << "once for the first showing, whenever the desktop activates it";
    form.set_caption(u"폰디라[문자메시지]");
    EXPECT_EQ(frame.windowTitle(), "폰디라[문자메시지]");
    form.set_minimum_size(744, 493);
    EXPECT_EQ(frame.minimumSize(), QSize(744, frame.minimumSizeHint().height())) << "no control is cut";
    form.move({.left = 150, .top = 300, .width = 11250, .height = 10800});
    EXPECT_EQ(frame.geometry().size(), QSize(750, 720));
    frame.resize(760, 730);
    settle();
    EXPECT_EQ(form.placement().width, 11400);
    EXPECT_EQ(form.placement().height, 10950);
    const QRect area = frame.screen()->availableGeometry();
    for (const int far : {-30000, 30000}) {
        form.move({.left = far, .top = far, .width = 60000, .height = 60000});
        EXPECT_TRUE(area.contains(QRect(frame.pos(), frame.size()))) << "a place kept on a larger screen";
    }
    form.set_window_state(platform::WindowState::maximised);
    EXPECT_TRUE(frame.isMaximized());
}

TEST_F(WindowTest, EscapeAndTheFramesCloseButtonReachTheForm) {
    QWidget& frame = *find("_centre").window();
    form.stays_open = true;
    QTest::keyClick(&find("mText1"), Qt::Key_Escape);
    frame.close();
    EXPECT_EQ(form.escapes, 1);
    EXPECT_EQ(form.closes, 1);
    EXPECT_TRUE(frame.isVisible());
    form.stays_open = false;
    frame.close();
    EXPECT_FALSE(form.loaded());
    EXPECT_FALSE(frame.isVisible());
}

TEST_F(WindowTest, AModalFormStartsWithItsHandlersFocusAndMayCloseInItsOwnButton) {
    auto ask = std::make_unique<frmAsk>(desktop);
    ask->Text1.set_text(u"hong");
    ask->load();
    ask->Text2.set_focus();
    int activated = 0;
    int opened_inside = 0;
    ask->on_activate = [&] {
        if (++activated > 1) return;
        QTimer::singleShot(0, [&] {
            EXPECT_EQ(find("Text1").window()->parentWidget(), find("_centre").window());
            EXPECT_EQ(QApplication::focusWidget(), &find("Text2"));
            EXPECT_TRUE(ask->Text2.has_focus());
            QTest::keyClick(&find("Text2"), Qt::Key_Escape);
            EXPECT_TRUE(ask->loaded()) << "a dialog does not close by itself";
            boxes.answers = {QMessageBox::Ok};
            desktop.message_box({.text = u"안", .title = u""});
            ++opened_inside;
            QTest::keyClick(&find("Text2"), Qt::Key_Return);
        });
    };
    ask->show_modal();
    EXPECT_FALSE(ask->loaded());
    EXPECT_EQ(opened_inside, 1);
    ask.reset();
    settle();
    EXPECT_TRUE(form.loaded());
}

TEST_F(WindowTest, AFormThatClosesInItsFirstActivationReturns) {
    frmAsk ask(desktop);
    ask.on_activate = [&] { ask.unload(); };
    ask.show_modal();
    EXPECT_FALSE(ask.loaded());
}

TEST_F(WindowTest, TheFocusFollowsTheUserAndStaysUnderABox) {
    std::vector<std::string> events;
    const auto follow = [&](platform::Control& control, const std::string& name) {
        control.GotFocus.connect([&events, name] { events.push_back("+" + name); });
        control.LostFocus.connect([&events, name] { events.push_back("-" + name); });
    };
    form.HText1.set_focus();
    follow(form.HText1, "number");
    follow(form.mText1, "text");
    follow(form.Combo3, "combo");
    form.Combo3.add_row(u"선택해주세요.");

    find("mText1").setFocus(Qt::MouseFocusReason);
    boxes.answers = {QMessageBox::Ok};
    desktop.message_box({.text = u"?", .title = u""});
    settle();
    EXPECT_EQ(events, (std::vector<std::string>{"-number", "+text"}));
    EXPECT_EQ(QApplication::focusWidget(), &find("mText1"));

    form.Picture2.set_focus();
    EXPECT_EQ(events, (std::vector<std::string>{"-number", "+text", "-text", "+text"}));
    EXPECT_EQ(QApplication::focusWidget(), &find("mText1"));

    events.clear();
    QTest::keyClick(&find("mText1"), Qt::Key_Tab);
    EXPECT_EQ(events.front(), "-text") << "a tab is no text";
    events.clear();
    form.Combo3.set_focus();
    QTest::keyClick(&find("Combo3"), Qt::Key_F4);
    settle();
    if (QWidget* popup = QApplication::activePopupWidget()) popup->close();
    settle();
    EXPECT_EQ(events, (std::vector<std::string>{"-number", "+combo"}))
        << "its own list is no loss of the focus";
    form.Combo3.set_enabled(false);
    form.Combo3.set_focus();
    EXPECT_NE(QApplication::focusWidget(), &find("Combo3"));
}

TEST_F(WindowTest, BoxesShowPlainTextAndKoreanButtonsAndCloseWithTheCautiousAnswer) {
    desktop.set_application_title(u"폰디라");
    struct Case {
        BoxButtons buttons;
        BoxAnswer default_answer;
        QMessageBox::StandardButton press;
        BoxAnswer answer;
        const char* default_caption;
    };
    for (const Case& c : std::vector<Case>{
             {BoxButtons::ok, BoxAnswer::ok, QMessageBox::NoButton, BoxAnswer::ok, "확인"},
             {BoxButtons::yes_no, BoxAnswer::no, QMessageBox::NoButton, BoxAnswer::no, "아니오(&N)"},
             {BoxButtons::yes_no, BoxAnswer::yes, QMessageBox::Yes, BoxAnswer::yes, "예(&Y)"},
             {BoxButtons::yes_no_cancel, BoxAnswer::cancel, QMessageBox::NoButton, BoxAnswer::cancel, "취소"},
             {BoxButtons::yes_no_cancel, BoxAnswer::cancel, QMessageBox::No, BoxAnswer::no, "취소"},
         }) {
        SCOPED_TRACE(c.default_caption);
        boxes.answers = {c.press};
        boxes.meanwhile = [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            EXPECT_EQ(box->objectName(), "messageBox");
            EXPECT_EQ(box->windowTitle(), "폰디라");
            EXPECT_EQ(box->textFormat(), Qt::PlainText);
            EXPECT_EQ(box->defaultButton()->text(), c.default_caption);
        };
        EXPECT_EQ(desktop.message_box({.text = u"<b>가</b>\r\n나",
                                       .title = u"",
                                       .buttons = c.buttons,
                                       .default_answer = c.default_answer}),
                  c.answer);
        EXPECT_EQ(boxes.asked.back(), "<b>가</b>\n나");
    }
}

TEST_F(WindowTest, AMenuOpensDirectlyBelowItsControlAndRaisesTheClickOfItsEntry) {
    bool deleted = false;
    form.mnuDelete.Click.connect([&] { deleted = true; });
    const QWidget& control = find("TabStrip1");
    QTimer::singleShot(0, [&] {
        QWidget* popup = QApplication::activePopupWidget();
        ASSERT_NE(popup, nullptr);
        EXPECT_EQ(popup->geometry().topLeft(), control.mapToGlobal(QPoint(0, control.height())));
        QTest::keyClick(popup, Qt::Key_Down);
        QTest::keyClick(popup, Qt::Key_Return);
    });
    desktop.popup_menu_below(form, form.mnuSubPopup, form.TabStrip1);
    EXPECT_TRUE(deleted);
}

TEST_F(WindowTest, TheHourglassDoesNotNest) {
    desktop.set_pointer(platform::Pointer::hourglass);
    desktop.set_pointer(platform::Pointer::hourglass);
    ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
    desktop.set_pointer(platform::Pointer::normal);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

std::vector<QString> faults_of(platform::Form& form, QWidget& window) {
    MemoryFiles files;
    return machine::qt::screen_faults(form, window, files);
}

TEST_F(WindowTest, LongWorkLetsItPaintAndNothingElse) {
    struct : QObject {
        bool eventFilter(QObject*, QEvent* event) override {
            paintings += event->type() == QEvent::Paint;
            return false;
        }
        int paintings = 0;
    } painted;
    QWidget& widget = find("_centre");
    widget.installEventFilter(&painted);
    int ticks = 0;
    machine::qt::QtClock clock;
    const auto ticker = clock.every(0, [&] { ++ticks; });

    widget.update();
    machine::qt::keep_painted();
    EXPECT_EQ(painted.paintings, 1);
    EXPECT_EQ(ticks, 0);
    QCoreApplication::processEvents();
    EXPECT_GE(ticks, 1) << "the timer runs on afterwards";
}

TEST_F(WindowTest, AnUncaughtErrorIsShownAndTheProgramGoesOn) {
    auto& application = dynamic_cast<machine::qt::QtApplication&>(*qApp);
    std::vector<int> shown;
    application.show_errors_with(
        [&](const platform::RuntimeError& error) { shown.push_back(error.number()); });
    int click = 0;
    form.Command1.Click.connect([&] {
        if (++click == 1) throw platform::RuntimeError(platform::ErrorNumber::overflow);
        if (click == 2) throw std::bad_alloc();
        if (click == 3) throw std::length_error("a text without an end");
        throw std::runtime_error("of a library");
    });
    for (int i = 0; i < 5; ++i) QTest::mouseClick(&find("Command1"), Qt::LeftButton);
    EXPECT_EQ(shown, (std::vector<int>{6, 7, 7, 5, 5}));
    application.show_errors_with({});
}

TEST_F(WindowTest, FaultsBetweenAFormAndItsScreenAreFound) {
    frmSample whole(desktop);
    EXPECT_EQ(faults_of(whole, *screens.build(u"frmSample")), std::vector<QString>{});

    struct Case {
        const char* name;
        std::function<void(QWidget&)> damage;
        QString fault;
    };
    for (const Case& c : std::vector<Case>{
             {"missing", [](QWidget& w) { delete w.findChild<QWidget*>("PBar1"); },
              "PBar1: no widget for it"},
             {"wrong kind",
              [](QWidget& w) {
                  delete w.findChild<QWidget*>("mHLen1");
                  (new QWidget(w.findChild<QWidget*>("_centre")))->setObjectName("mHLen1");
              },
              "mHLen1: a QWidget cannot show it"},
             {"too much",
              [](QWidget& w) { (new QLabel(w.findChild<QWidget*>("Picture2_0")))->setObjectName("label_7"); },
              "label_7: no control for it"},
             {"no name", [](QWidget& w) { w.findChild<QWidget*>("DTP1")->setAccessibleName({}); },
              "DTP1: no name for a screen reader"},
         }) {
        SCOPED_TRACE(c.name);
        const auto window = screens.build(u"frmSample");
        c.damage(*window);
        frmSample damaged(desktop);
        EXPECT_EQ(faults_of(damaged, *window), std::vector<QString>{c.fault});
    }
}

}  // namespace
}  // namespace tests
