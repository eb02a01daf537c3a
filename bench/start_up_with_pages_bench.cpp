// What the pages' engine costs the program's start: with its module beside the program, without it, and, as
// the alternative that was rejected, with the engine linked to the program. A start that loads the engine
// when it should not, or does not when it should, ends the measurement.

#include "bench/first_paint.h"
#include "bench/ratio.h"

#include <cstdio>
#include <fstream>
#include <string_view>

namespace {

constexpr int RUNS = 40;

bool engine_is_loaded() {
    std::ifstream maps("/proc/self/maps");
    for (std::string line; std::getline(maps, line);) {
        if (line.find("WebEngine") != std::string::npos || line.find("zent_web") != std::string::npos)
            return true;
    }
    return false;
}

int child(int argc, char** argv) {
    const std::string_view what = argv[1];
    QApplication qt(argc, argv);
    if (what == "with") QCoreApplication::addLibraryPath(QStringLiteral(WEB_MODULE_FOLDER));
    bench::FirstPaint first_paint([what] { return engine_is_loaded() == (what == "linked") ? 0 : 1; });
    qt.installEventFilter(&first_paint);
    bench::show_program(argv[2]);
    return 1;
}

double milliseconds_with_engine_linked(const std::string& folder) {
    setenv("LD_PRELOAD", WEB_ENGINE, 1);
    const double milliseconds = bench::milliseconds_to_first_paint("linked", folder);
    unsetenv("LD_PRELOAD");
    return milliseconds;
}

int measure() {
    const bench::ScratchFolder folder;
    const tests::VirtualDisplay display;
    std::vector<double> with;
    std::vector<double> without;
    std::vector<double> linked;
    for (int run = 0; run < RUNS; ++run) {
        with.push_back(bench::milliseconds_to_first_paint("with", folder.path()));
        without.push_back(bench::milliseconds_to_first_paint("without", folder.path()));
        linked.push_back(milliseconds_with_engine_linked(folder.path()));
    }
    std::printf("with the module %.1f ms, without %.1f ms, linked %.1f ms (linked / without %.2f)\n",
                bench::median(with), bench::median(without), bench::median(linked),
                bench::median_ratio(linked, without));
    return bench::print_ratio_at_most("start_up_with_pages", bench::median_ratio(with, without),
                                      "with the pages' engine / without", 1.05)
               ? 0
               : 1;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc == 3) return child(argc, argv);
    try {
        return measure();
    } catch (const std::runtime_error& error) {
        std::fprintf(stderr, "start_up_with_pages_bench: %s\n", error.what());
        return 1;
    }
}
