// From the start of the process to the first painted window: the program put together as in app/main.cpp,
// beside a bare window of the toolkit with one line of Korean and one menu. Finding and opening the Korean
// fonts costs any window as much as everything else in a bare one, so the bare window has them too and only
// what this program adds is measured. The time of an empty window is shown as well.

#include "bench/first_paint.h"
#include "bench/ratio.h"

#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <string_view>

namespace {

constexpr int RUNS = 40;

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

int child(int argc, char** argv) {
    const std::string_view what = argv[1];
    QApplication qt(argc, argv);
    bench::FirstPaint first_paint;
    qt.installEventFilter(&first_paint);
    if (what == "program") {
        bench::show_program(argv[2]);
    } else {
        QApplication::setStyle(QStringLiteral("Fusion"));
        what == "bare" ? show_bare_window() : show_empty_window();
    }
    return 1;
}

/// Milliseconds of every run. The three take turns, so that what slows the machine down slows them all.
struct Times {
    std::vector<double> program;
    std::vector<double> bare;
    std::vector<double> empty;
};

Times measure(const std::string& folder) {
    using bench::milliseconds_to_first_paint;
    const tests::VirtualDisplay display;
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

    try {
        const bench::ScratchFolder folder;
        const Times times = measure(folder.path());
        std::printf("program %.1f ms, bare window %.1f ms, empty window %.1f ms (program / empty %.2f)\n",
                    bench::median(times.program), bench::median(times.bare), bench::median(times.empty),
                    bench::median_ratio(times.program, times.empty));
        const double ratio = bench::median_ratio(times.program, times.bare);
        return bench::print_ratio_at_most("start_up", ratio, "program / bare Qt window", 1.5) ? 0 : 1;
    } catch (const std::runtime_error& error) {
        std::fprintf(stderr, "start_up_bench: %s\n", error.what());
        return 1;
    }
}
