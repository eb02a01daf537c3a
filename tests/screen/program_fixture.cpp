#include "tests/screen/program_fixture.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QPlainTextEdit>
#include <QTest>

namespace tests {

namespace {

QWidget* front_window() {
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->objectName() == QStringLiteral("frmZent")) return window;
    }
    return nullptr;
}

QWidget& find(QWidget& window, const char* name) {
    auto* found = window.findChild<QWidget*>(QString::fromLatin1(name));
    if (found == nullptr) throw std::logic_error(name);
    return *found;
}

}  // namespace

void HastyClock::pause(int milliseconds) {
    pauses.push_back(milliseconds);
    for (int turn = 0; turn < 3; ++turn) QCoreApplication::processEvents();
}

WindowPlayer::WindowPlayer() { QTimer::singleShot(0, this, &WindowPlayer::look); }

WindowPlayer::~WindowPlayer() {
    for (const Step& step : steps_) ADD_FAILURE() << "never in front: " << step.window.toStdString();
}

void WindowPlayer::in_window(const char* name, Act act, Condition condition) {
    steps_.push_back({QString::fromLatin1(name), std::move(act), std::move(condition)});
}

void WindowPlayer::look() {
    // A new timer for each look: a step may open a window and return only when that is closed.
    QTimer::singleShot(0, this, &WindowPlayer::look);
    QWidget* window = front_window();
    if (steps_.empty() || window == nullptr || window->objectName() != steps_.front().window) return;
    // A user types into a window only when it has the focus.
    if (!window->isActiveWindow()) return window->activateWindow();
    if (!steps_.front().condition()) return;
    const Step step = std::move(steps_.front());
    steps_.pop_front();
    step.act(*window);
}

ProgramTest::ProgramTest() {
    namespace fs = std::filesystem;
    fs::copy_file(CARRIER_HOST, folder.path() / "carrier-host");
    fs::copy_file(CARRIER_LIBRARY, folder.path() / "x_msggate_d.so");
    fs::copy_file(CARRIER_INI, folder.path() / "carrier.ini");
}

void ProgramTest::run() {
    ASSERT_TRUE(application.start());
    machine.desktop.run_until_closed(application.main_form());
}

void ProgramTest::log_in() {
    user.in_window("frmZentLogin", [](QWidget& window) {
        type_into(window, "Text1", QStringLiteral("demo"));
        type_into(window, "Text2", QStringLiteral("demo1234"));
        press(window, "Command1");
    });
}

void ProgramTest::type_into(QWidget& window, const char* field, const QString& text) {
    QWidget& widget = find(window, field);
    widget.setFocus();
    QTest::keyClick(&widget, Qt::Key_A, Qt::ControlModifier);
    for (const QChar character : text) {
        if (character.unicode() < 128) {
            QTest::keyClick(&widget, character.toLatin1());
        } else {
            // As an input method commits a syllable.
            QInputMethodEvent event;
            event.setCommitString(character);
            QCoreApplication::sendEvent(&widget, &event);
        }
    }
}

void ProgramTest::press(QWidget& window, const char* button) {
    QTest::mouseClick(&find(window, button), Qt::LeftButton);
}

QString ProgramTest::text_of(QWidget& window, const char* field) {
    return dynamic_cast<QPlainTextEdit&>(find(window, field)).toPlainText();
}

}  // namespace tests
