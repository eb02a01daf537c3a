#pragma once

#include "app/application.h"
#include "app/desktop_machine.h"
#include "machine/qt/desktop/qt_clock.h"
#include "tests/support/temporary_folder.h"

#include <QTimer>
#include <deque>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>

namespace tests {

/// The machine's clock on which nobody waits and which stands: what a pause is for still happens in it.
class HastyClock : public machine::qt::QtClock {
  public:
    platform::LocalTime now() override { return platform::make_time(2026, 11, 23, 10, 5); }
    void pause(int milliseconds) override;

    /// Every pause in milliseconds, in order.
    std::vector<int> pauses;
};

/// The user in front of the real program: what he does in each window, in the order in which he expects them.
class WindowPlayer : public QObject {
  public:
    WindowPlayer();
    ~WindowPlayer() override;

    using Act = std::function<void(QWidget& window)>;
    using Condition = std::function<bool()>;

    /// Once a window of this name is in front and the condition holds, does this in it. Message boxes are
    /// windows named "messageBox".
    void in_window(
        const char* name, Act act, Condition condition = [] { return true; });

  private:
    void look();

    struct Step {
        QString window;
        Act act;
        Condition condition;
    };
    std::deque<Step> steps_;
};

/// The whole program as it is installed, in a folder of its own: real windows, real files, the carrier's
/// library.
class ProgramTest : public testing::Test {
  protected:
    ProgramTest();

    /// Runs the program from its start to its end.
    void run();
    /// The user logs in.
    void log_in();

    /// Types in place of what the field holds.
    static void type_into(QWidget& window, const char* field, const QString& text);
    static void press(QWidget& window, const char* button);
    static QString text_of(QWidget& window, const char* field);

    TemporaryFolder folder;
    WindowPlayer user;
    machine::posix::Paths paths{folder.path().string()};
    HastyClock clock;
    app::DesktopMachine machine{
        paths, machine::posix::PosixFiles(paths, (folder.path() / "windows").string()), clock};
    app::Application application{machine.platform};
};

}  // namespace tests
