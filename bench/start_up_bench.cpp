// From the start of the process to the first painted window: the program put together as in app/main.cpp,
// beside a bare window of the toolkit with nothing in it.

#include "app/application.h"
#include "bench/ratio.h"
#include "platform/ini/ini_settings.h"
#include "platform/posix/posix_carrier_library.h"
#include "platform/posix/posix_files.h"
#include "platform/posix/posix_shell.h"
#include "platform/qt/qt_clock.h"
#include "platform/qt/qt_desktop.h"

#include <QApplication>
#include <QEvent>
#include <QMainWindow>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int RUNS = 15;

/// Ends the process as soon as a window has been painted.
class FirstPaint : public QObject {
  protected:
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::Paint && object->isWidgetType()) painted_ = true;
        if (event->type() == QEvent::UpdateRequest || !painted_) return false;
        QMetaObject::invokeMethod(
            this, [] { _exit(0); }, Qt::QueuedConnection);
        return false;
    }

  private:
    bool painted_ = false;
};

void show_bare_window() {
    QMainWindow window;
    window.resize(800, 600);
    window.show();
    QApplication::exec();
}

void show_program(const char* folder) {
    const platform::posix::Paths paths(folder);
    platform::posix::PosixFiles files(paths, std::string(folder) + "/windows");
    platform::IniSettings settings(files);
    platform::posix::PosixShell shell(paths);
    platform::posix::PosixCarrierLibrary carrier;
    platform::qt::QtClock clock;
    const platform::qt::Screens screens = platform::qt::program_screens();
    platform::qt::QtDesktop desktop(screens, files);
    platform::Platform platform{.desktop = desktop,
                                .clock = clock,
                                .files = files,
                                .settings = settings,
                                .shell = shell,
                                .carrier = carrier};
    app::Application application(platform);
    if (application.start()) desktop.run_until_closed(application.main_form());
}

int child(int argc, char** argv) {
    QApplication qt(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    FirstPaint first_paint;
    qt.installEventFilter(&first_paint);
    std::strcmp(argv[1], "bare") == 0 ? show_bare_window() : show_program(argv[2]);
    return 1;
}

double milliseconds_to_first_paint(const char* mode, const char* folder) {
    char* arguments[] = {const_cast<char*>("start_up_bench"), const_cast<char*>(mode),
                         const_cast<char*>(folder), nullptr};
    const auto start = std::chrono::steady_clock::now();
    pid_t process = 0;
    int status = 0;
    if (posix_spawn(&process, "/proc/self/exe", nullptr, nullptr, arguments, environ) != 0 ||
        waitpid(process, &status, 0) != process || status != 0) {
        std::fprintf(stderr, "start_up_bench: %s did not paint\n", mode);
        std::exit(1);
    }
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

}  // namespace

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    if (argc > 1) return child(argc, argv);

    char folder[] = "/tmp/start_up_bench.XXXXXX";
    if (mkdtemp(folder) == nullptr) return 1;
    double bare = milliseconds_to_first_paint("bare", folder);
    double ours = milliseconds_to_first_paint("program", folder);
    for (int run = 1; run < RUNS; ++run) {
        bare = std::min(bare, milliseconds_to_first_paint("bare", folder));
        ours = std::min(ours, milliseconds_to_first_paint("program", folder));
    }
    std::filesystem::remove_all(folder);
    std::printf("program %.1f ms, bare window %.1f ms\n", ours, bare);
    return bench::print_ratio_at_most("start_up", ours / bare, "program / bare Qt window", 1.5) ? 0 : 1;
}
