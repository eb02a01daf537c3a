// A job over a long list must not slow down as the list grows: a row among 100,000 costs as much as one among
// 10,000. The carrier answers at once and the pauses are skipped, so only the program's own time is left.

#include "bench/ratio.h"
#include "tests/support/sending.h"

#include <optional>

namespace {

constexpr int SHORT_LIST = 10'000;
constexpr int LONG_LIST = 100'000;
constexpr double LIMIT = 1.3;

/// From the click of the send button to the report.
void send_job(benchmark::State& state, int rows) {
    std::optional<tests::Sending> sending;
    for (auto _ : state) {
        state.PauseTiming();
        sending.emplace();
        sending->add_many(rows);
        state.ResumeTiming();
        sending->send();
        if (sending->form.recipients.ListView1.checked_count() != 0)
            state.SkipWithError("not all rows were sent");
    }
}

}  // namespace

BENCHMARK_CAPTURE(send_job, short_list, SHORT_LIST)->Repetitions(5);
BENCHMARK_CAPTURE(send_job, long_list, LONG_LIST)->Repetitions(5);

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    bench::TimeKeeper times;
    benchmark::RunSpecifiedBenchmarks(&times);
    const double ratio =
        times.time("send_job/long_list") / LONG_LIST / (times.time("send_job/short_list") / SHORT_LIST);
    std::printf("send_job cost per row %d/%d ratio %.2f (at most %g)\n", LONG_LIST, SHORT_LIST, ratio, LIMIT);
    return ratio <= LIMIT ? 0 : 1;
}
