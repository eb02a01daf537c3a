#pragma once

#include "app/application.h"
#include "app/desktop_machine.h"
#include "machine/qt/desktop/qt_clock.h"
#include "machine/qt/look/desk_style.h"
#include "machine/qt/look/desktop_settings.h"
#include "machine/qt/look/korean.h"
#include "machine/qt/look/late_icon.h"
#include "tests/support/virtual_display.h"

#include <QApplication>
#include <QDBusConnection>
#include <QEvent>
#include <QLocale>
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <spawn.h>
#include <stdexcept>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace bench {

/// Ends the process as soon as a window has been painted, with the number that `result` returns then.
class FirstPaint : public QObject {
  public:
    explicit FirstPaint(std::function<int()> result = [] { return 0; }) : result_(std::move(result)) {}

  protected:
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::Paint && object->isWidgetType()) painted_ = true;
        if (event->type() == QEvent::UpdateRequest || !painted_) return false;
        QMetaObject::invokeMethod(
            this, [this] { _exit(result_()); }, Qt::QueuedConnection);
        return false;
    }

  private:
    std::function<int()> result_;
    bool painted_ = false;
};

/// Shows the program, put together as in app/main.cpp, with the folder as its application directory.
inline void show_program(const std::string& folder) {
    QApplication::setStyle(new machine::qt::DeskStyle);
    machine::qt::use_font_with_hangul(QApplication::font());
    const machine::qt::DesktopSettings desktop_settings(QDBusConnection::sessionBus());
    QApplication::setWindowIcon(machine::qt::late_icon(QStringLiteral("app")));
    QApplication::setQuitOnLastWindowClosed(false);
    QLocale::setDefault(QLocale(QLocale::Korean, QLocale::SouthKorea));
    machine::qt::KoreanTranslator korean;
    QApplication::installTranslator(&korean);

    const machine::posix::Paths paths(folder);
    machine::qt::QtClock clock;
    app::DesktopMachine machine(paths, clock);
    app::Application application(machine.platform);
    if (application.start()) machine.desktop.run_until_closed(application.main_form());
}

/// Starts this program again with the two arguments and waits for its first painted window.
inline double milliseconds_to_first_paint(std::string what, std::string folder) {
    std::string program = "bench";
    char* arguments[] = {program.data(), what.data(), folder.data(), nullptr};
    const auto start = std::chrono::steady_clock::now();
    pid_t process = 0;
    int status = 0;
    if (posix_spawn(&process, "/proc/self/exe", nullptr, nullptr, arguments, environ) != 0 ||
        waitpid(process, &status, 0) != process || status != 0) {
        throw std::runtime_error(what + " did not paint");
    }
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

inline double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// The median of the runs' own ratios.
inline double median_ratio(const std::vector<double>& times, const std::vector<double>& others) {
    std::vector<double> ratios(times.size());
    std::transform(times.begin(), times.end(), others.begin(), ratios.begin(), std::divides<>());
    return median(ratios);
}

/// A folder for the program's files, removed at the end.
class ScratchFolder {
  public:
    ScratchFolder() {
        if (mkdtemp(path_.data()) == nullptr) throw std::runtime_error("no folder");
        setenv("XDG_RUNTIME_DIR", path_.c_str(), 0);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    ~ScratchFolder() { std::filesystem::remove_all(path_); }

    const std::string& path() const { return path_; }

  private:
    std::string path_ = "/tmp/start_up_bench.XXXXXX";
};

}  // namespace bench
