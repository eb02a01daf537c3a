#pragma once

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace bench {

/// Shows the runs as usual and keeps the shortest time of each benchmark, the one that other programs
/// disturbed least.
class TimeKeeper : public benchmark::ConsoleReporter {
  public:
    TimeKeeper() : ConsoleReporter(OO_None) {}

    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (run.run_type != Run::RT_Iteration) continue;
            const double time = run.GetAdjustedRealTime();
            const auto [known, is_new] = times_.try_emplace(run.run_name.function_name, time);
            if (!is_new) known->second = std::min(known->second, time);
        }
    }

    double time(const std::string& benchmark) const { return times_.at(benchmark); }

  private:
    std::map<std::string, double> times_;
};

/// Runs the registered benchmarks, among them "ours" and the obvious alternative, and prints how many times
/// as long the alternative takes. Returns the program's exit code: 1 when the ratio is below `at_least`.
inline int run(int argc, char** argv, const char* name, const char* alternative, double at_least) {
    benchmark::Initialize(&argc, argv);
    TimeKeeper times;
    benchmark::RunSpecifiedBenchmarks(&times);
    const double ratio = times.time(alternative) / times.time("ours");
    std::printf("%s ratio %.1f (%s / ours, at least %g)\n", name, ratio, alternative, at_least);
    return ratio >= at_least ? 0 : 1;
}

}  // namespace bench
