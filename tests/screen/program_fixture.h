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

/// The machine's clock, standing still and without waiting: a pause still runs the event loop.
class HastyClock : public machine::qt::QtClock {
  public:
    platform::LocalTime now() override { return platform::make_time(2026, 11, 23, 10, 5); }
    void pause(int milliseconds) override;

    /// Every pause in milliseconds, in order.
    std::vector<int> pauses;
};

/// The user of the real program: what the user does in each window, in the order in which the windows open.
class WindowPlayer : public QObject {
  public:
    WindowPlayer();
    ~WindowPlayer() override;

    using Act = std::function<void(QWidget& window)>;
    using Condition = std::function<bool()>;

    /// Acts once a window of this name is in front and the condition holds. Message boxes are windows named
    /// "messageBox".
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

/// The whole program as installed, in a folder of its own: real windows, real files, the stand-in's library.
class ProgramTest : public testing::Test {
  protected:
    ProgramTest();

    /// Runs the program from its start to its end.
    void run();
    /// The user logs in.
    void log_in();

    /// Replaces the field's text by typing.
    static void type_into(QWidget& window, const char* field, const QString& text);
    static void press(QWidget& window, const char* button);
    static QString text_of(QWidget& window, const char* field);

    TemporaryFolder folder;
    WindowPlayer user;
    machine::posix::Paths paths{folder.path().string()};
    HastyClock clock;
    app::DesktopMachine machine{paths, clock};
    app::Application application{machine.platform};
};

}  // namespace tests
