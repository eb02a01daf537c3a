// From the start of the process to the first painted window: the program put together as in app/main.cpp,
// beside a bare window of the toolkit with one line of Korean and one menu. Any window in Korean pays for
// looking up and opening its fonts, as much as for all the rest of a bare window; what is measured is what
// this program adds. The time of a window with nothing in it is shown too.

#include "app/application.h"
#include "app/machine.h"
#include "bench/ratio.h"
#include "platform/qt/desk_style.h"
#include "platform/qt/korean_font.h"
#include "platform/qt/korean_translator.h"
#include "platform/qt/qt_clock.h"

#include <QApplication>
#include <QEvent>
#include <QIcon>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <spawn.h>
#include <stdexcept>
#include <string>
#include <string_view>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr int RUNS = 40;

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

void show_empty_window() {
    QMainWindow window;
    window.resize(800, 600);
    window.show();
    QApplication::exec();
}

void show_bare_window() {
    QMainWindow window;
    window.resize(800, 600);
    window.menuBar()->addMenu(QStringLiteral("파일(&F)"));
    window.setCentralWidget(new QLabel(QStringLiteral("보낼 메시지를 입력하세요.")));
    window.show();
    QApplication::exec();
}

void show_program(const std::string& folder) {
    QApplication::setStyle(new platform::qt::DeskStyle);
    platform::qt::use_font_with_hangul();
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/app.svg")));
    QApplication::setQuitOnLastWindowClosed(false);
    platform::qt::KoreanTranslator korean;
    QApplication::installTranslator(&korean);

    const platform::posix::Paths paths(folder);
    platform::qt::QtClock clock;
    app::Machine machine(paths, platform::posix::PosixFiles(paths, folder + "/windows"), clock);
    app::Application application(machine.platform);
    if (application.start()) machine.desktop.run_until_closed(application.main_form());
}

int child(int argc, char** argv) {
    const std::string_view what = argv[1];
    QApplication qt(argc, argv);
    FirstPaint first_paint;
    qt.installEventFilter(&first_paint);
    if (what == "program") {
        show_program(argv[2]);
    } else {
        QApplication::setStyle(QStringLiteral("Fusion"));
        what == "bare" ? show_bare_window() : show_empty_window();
    }
    return 1;
}

double milliseconds_to_first_paint(std::string what, std::string folder) {
    std::string program = "start_up_bench";
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

/// An X server without a screen for as long as it lives, unless the user has one.
class Display {
  public:
    Display() {
        setenv("QT_QPA_PLATFORM", "xcb", 1);
        if (std::getenv("DISPLAY") != nullptr) return;
        int ends[2];
        if (pipe(ends) != 0) throw std::runtime_error("no pipe");
        server_ = fork();
        if (server_ == 0) {
            const std::string end = std::to_string(ends[1]);
            execlp("Xvfb", "Xvfb", "-displayfd", end.c_str(), "-screen", "0", "1280x900x24", nullptr);
            _exit(1);
        }
        close(ends[1]);
        // The number comes with the end of its line once the server takes clients.
        std::string number = ":";
        for (char digit = 0; read(ends[0], &digit, 1) == 1 && digit != '\n';) number += digit;
        close(ends[0]);
        if (number == ":") throw std::runtime_error("no display, and Xvfb does not start");
        setenv("DISPLAY", number.c_str(), 1);
    }

    ~Display() {
        if (server_ <= 0) return;
        kill(server_, SIGTERM);
        waitpid(server_, nullptr, 0);
    }

  private:
    pid_t server_ = 0;
};

double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// Milliseconds of every run. The three take turns, so that what slows the machine down slows them all.
struct Times {
    std::vector<double> program;
    std::vector<double> bare;
    std::vector<double> empty;

    /// The median of the runs' own ratios to the program's time.
    double ratio_to(const std::vector<double>& other) const {
        std::vector<double> ratios(program.size());
        std::transform(program.begin(), program.end(), other.begin(), ratios.begin(), std::divides<>());
        return median(ratios);
    }
};

Times measure(const std::string& folder) {
    const Display display;
    Times times;
    for (int run = 0; run < RUNS; ++run) {
        times.program.push_back(milliseconds_to_first_paint("program", folder));
        times.bare.push_back(milliseconds_to_first_paint("bare", folder));
        times.empty.push_back(milliseconds_to_first_paint("empty", folder));
    }
    return times;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc == 3) return child(argc, argv);

    char folder[] = "/tmp/start_up_bench.XXXXXX";
    if (mkdtemp(folder) == nullptr) return 1;
    setenv("XDG_RUNTIME_DIR", folder, 0);
    int failed = 1;
    try {
        const Times times = measure(folder);
        std::printf("program %.1f ms, bare window %.1f ms, empty window %.1f ms (program / empty %.2f)\n",
                    median(times.program), median(times.bare), median(times.empty),
                    times.ratio_to(times.empty));
        failed = !bench::print_ratio_at_most("start_up", times.ratio_to(times.bare),
                                             "program / bare Qt window", 1.5);
    } catch (const std::runtime_error& error) {
        std::fprintf(stderr, "start_up_bench: %s\n", error.what());
    }
    std::filesystem::remove_all(folder);
    return failed;
}
