// F1 opens the user's guide wherever it is pressed, and disturbs nothing.

#include "app/application.h"
#include "tests/screen/screen_fixture.h"
#include "tests/support/utf8.h"
#include "tests/support/windows_on_doubles.h"

namespace tests {
namespace {

using Pages = std::vector<std::string>;

class Guide : public DeskTest {
  protected:
    Guide() {
        for (const char16_t* page : {u"text", u"voice", u"schedule", u"messages"})
            windows.machine.files.files[u"z:\\app\\guide\\" + platform::Text(page) + u".html"] = "<html>";
        main.show();
        settle();
        main.choose(compose::MessageKind::text);
        main.text.mText1.set_text(u"");
    }
    ~Guide() override {
        main.unload();
        settle();
    }

    /// The pages that open while the user holds F1 down in the window in front. Some keyboards say so of the
    /// repeats, others let the key up between them.
    Pages pages_by_key() {
        constexpr int UP_BEFORE = 60;
        QTest::qWait(UP_BEFORE);
        QWidget* modal = QApplication::activeModalWidget();
        QWidget* receiver = modal != nullptr ? modal : QApplication::focusWidget();
        QTest::keyPress(receiver, Qt::Key_F1);
        QKeyEvent held(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier, {}, true);
        QCoreApplication::sendEvent(receiver, &held);
        QTest::keyRelease(receiver, Qt::Key_F1);
        QTest::keyClick(receiver, Qt::Key_F1);
        settle();
        return opened();
    }
    Pages opened() {
        Pages pages;
        for (const platform::Text& path : std::exchange(windows.machine.shell.opened, {}))
            pages.push_back(utf8(path));
        return pages;
    }

    WindowsOnDoubles windows;
    app::Application application{windows.platform};
    compose::frmZent& main = application.main_form();
    BoxPlayer boxes;
};

TEST_F(Guide, OpensAtTheWindowInFront) {
    EXPECT_EQ(pages_by_key(), Pages{"z:\\app\\guide\\text.html"});
    main.choose(compose::MessageKind::voice);
    EXPECT_EQ(pages_by_key(), Pages{"z:\\app\\guide\\voice.html"});
    QTimer::singleShot(0, [&] {
        EXPECT_EQ(pages_by_key(), Pages{"z:\\app\\guide\\schedule.html"});
        main.mnuGuide.Click.raise();
        EXPECT_EQ(opened(), Pages()) << "a screen reader presses what the dialog covers";
        QApplication::activeModalWidget()->close();
    });
    main.schedule.show_settings();
    QTimer::singleShot(0, [&] {
        EXPECT_EQ(pages_by_key(), Pages{"z:\\app\\guide\\messages.html"});
        QApplication::activeModalWidget()->close();
    });
    windows.desktop.input_box({.title = u"분류등록"});
}

TEST_F(Guide, LosesNothingOfWhatIsTypedIntoABox) {
    boxes.answers = {QMessageBox::Ok};
    boxes.meanwhile = [&] {
        QTest::keyClick(QApplication::activeModalWidget()->focusWidget(), Qt::Key_A);
        EXPECT_EQ(pages_by_key(), Pages{"z:\\app\\guide\\messages.html"});
        QTest::keyClick(QApplication::activeModalWidget()->focusWidget(), Qt::Key_B);
    };
    windows.desktop.message_box({.text = u"?"});
    settle();
    EXPECT_EQ(utf8(main.text.mText1.text()), "ab");
}

TEST_F(Guide, SaysOnceThatAPageIsMissing) {
    windows.machine.files.files.clear();
    boxes.answers = {QMessageBox::Ok};
    boxes.meanwhile = [&] { EXPECT_EQ(pages_by_key(), Pages()); };
    main.mnuGuide.Click.raise();
    EXPECT_EQ(boxes.asked, std::vector{QStringLiteral("사용 설명서를 찾을 수 없습니다.\n"
                                                      "프로그램을 다시 설치하면 설명서도 함께 설치됩니다.\n\n"
                                                      "text.html — /app/guide")});
}

}  // namespace
}  // namespace tests
