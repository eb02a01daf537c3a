// A hand-over of 100,000 recipients with the duplicate search that each of them asks for; the alternative
// reads the same lines and adds the same rows, but never searches, so its list keeps no index. The same into
// a list that is sorted by the numbers; the alternative hands over into an unsorted one and sorts it
// afterwards. Pasting the same people; the alternative is the hand-over.

#include "bench/ratio.h"
#include "compose/recipients/frmPasted.h"
#include "handover/handover.h"
#include "handover/handover_lines.h"
#include "tests/support/main_window.h"

#include <optional>

namespace {

using platform::Text;

constexpr int LINES = 100'000;

/// Unsorted numbers, as they come from a card database.
std::string lines() {
    std::string all;
    for (int line = 0; line < LINES; ++line) {
        all += "0\tname" + std::to_string(line % 3'000) + "\t010-" +
               std::to_string(10'000'000LL + line * 7'919LL % 89'999'999LL) + "\ttitle\r\n";
    }
    return all;
}

std::unique_ptr<tests::MainWindow> window() {
    auto window = std::make_unique<tests::MainWindow>();
    window->form.load();
    return window;
}

enum class Sorting { none, before, afterwards };

void hand_over(benchmark::State& state, const std::string& file, Sorting sorting) {
    std::unique_ptr<tests::MainWindow> main;
    for (auto _ : state) {
        state.PauseTiming();
        main = window();
        main->files.files[u"z:\\app\\temp\\isend.text"] = "1";
        main->files.files[u"z:\\app\\temp\\tmpman.txt"] = file;
        platform::ListView& list = main->form.recipients.ListView1;
        const auto sort = [&] {
            list.sort(compose::RECIPIENT_NUMBER, platform::ListView::SortOrder::ascending);
        };
        if (sorting == Sorting::before) sort();
        state.ResumeTiming();
        handover::HandOver(main->platform, main->state, main->form).NEW_SENDMAN_LOAD();
        if (sorting == Sorting::afterwards) sort();
        if (list.row_count() != LINES) state.SkipWithError("not everybody came in");
    }
}

void paste(benchmark::State& state, const std::string& file) {
    const Text pasted = platform::replace_all(handover::handed_over_text(file), u"0\tname", u"name");
    std::unique_ptr<tests::MainWindow> main;
    for (auto _ : state) {
        state.PauseTiming();
        main = window();
        main->desktop.in_form<compose::frmPasted>(u"frmPasted", [&](compose::frmPasted& report) {
            main->clock.run_until([&] { return report.Command2.visible(); });
            report.unload();
        });
        state.ResumeTiming();
        main->form.recipient_exchange.take_in(pasted);
        if (main->form.recipients.ListView1.row_count() != LINES)
            state.SkipWithError("not everybody came in");
    }
}

void without_search(benchmark::State& state, const std::string& file) {
    std::unique_ptr<tests::MainWindow> main;
    for (auto _ : state) {
        state.PauseTiming();
        main = window();
        state.ResumeTiming();
        const Text text = handover::handed_over_text(file);
        handover::HandedOverRecipient recipient;
        for (const platform::TextView line : platform::split(text, u'\n')) {
            if (!recipient.read(line)) continue;
            main->form.recipients.ListView1.add_row(
                u"", {recipient.name, recipient.number, u"", recipient.title}, true);
        }
        if (main->form.recipients.ListView1.row_count() != LINES)
            state.SkipWithError("not everybody came in");
    }
}

}  // namespace

int main(int argc, char** argv) {
    const std::string file = lines();
    const auto add = [](const char* name, auto... measured) {
        benchmark::RegisterBenchmark(name, measured...)->Iterations(2)->Repetitions(5);
    };
    add("hand_over", hand_over, file, Sorting::none);
    add("without_search", without_search, file);
    add("into_sorted", hand_over, file, Sorting::before);
    add("sorted_afterwards", hand_over, file, Sorting::afterwards);
    add("paste", paste, file);
    benchmark::Initialize(&argc, argv);
    bench::TimeKeeper times;
    benchmark::RunSpecifiedBenchmarks(&times);
    const bool searches = bench::print_ratio_at_most(
        "hand_over", times.time("hand_over") / times.time("without_search"), "with search / without", 2);
    const bool sorts = bench::print_ratio_at_most("sorted_hand_over",
                                                  times.time("into_sorted") / times.time("sorted_afterwards"),
                                                  "into a sorted list / sorted afterwards", 2);
    const bool pastes = bench::print_ratio_at_most("paste", times.time("paste") / times.time("hand_over"),
                                                   "pasted / handed over", 2);
    return searches && sorts && pastes ? 0 : 1;
}
