#pragma once

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace bench {

/// Prints the runs as usual and keeps the shortest processor time of each benchmark, the one that other
/// programs disturbed least.
class TimeKeeper : public benchmark::ConsoleReporter {
  public:
    TimeKeeper() : ConsoleReporter(OO_None) {}

    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (run.run_type != Run::RT_Iteration) continue;
            const double time = run.GetAdjustedCPUTime();
            const auto [known, is_new] = times_.try_emplace(run.run_name.function_name, time);
            if (!is_new) known->second = std::min(known->second, time);
        }
    }

    double time(const std::string& benchmark) const { return times_.at(benchmark); }

  private:
    std::map<std::string, double> times_;
};

/// Prints the ratio and what it compares. Returns whether it keeps the limit.
inline bool print_ratio(const char* name, double ratio, const char* what, double at_least) {
    std::printf("%s ratio %.1f (%s, at least %g)\n", name, ratio, what, at_least);
    return ratio >= at_least;
}
inline bool print_ratio_at_most(const char* name, double ratio, const char* what, double at_most) {
    std::printf("%s ratio %.2f (%s, at most %g)\n", name, ratio, what, at_most);
    return ratio <= at_most;
}

/// Runs the registered benchmarks, among them "ours" and the obvious alternative, and prints how many times
/// as long the alternative takes. Returns the program's exit code: 1 when the ratio is below `at_least`.
inline int run(int argc, char** argv, const char* name, const char* alternative, double at_least) {
    benchmark::Initialize(&argc, argv);
    TimeKeeper times;
    benchmark::RunSpecifiedBenchmarks(&times);
    const std::string what = std::string(alternative) + " / ours";
    return print_ratio(name, times.time(alternative) / times.time("ours"), what.c_str(), at_least) ? 0 : 1;
}

}  // namespace bench
