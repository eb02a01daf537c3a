// Keeping the draft must not be felt: not while 100,000 rows go to the disk in parts, and not in a job, which
// notes each submit before and behind it. The file is on a disk that answers at once.

#include "bench/ratio.h"
#include "drafts/draft_keeper.h"
#include "machine/drafts/sqlite_draft_store.h"
#include "tests/support/main_window.h"

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <numeric>

namespace {

constexpr std::size_t ROWS = 100'000;
constexpr std::size_t BATCH = 100;
constexpr double FRAME = 0.1;
constexpr double SUBMIT = 0.002;

template <class Act>
double seconds(Act act) {
    const auto start = std::chrono::steady_clock::now();
    act();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// The longest time that the event loop stands still while the rows are written.
double longest_part(tests::MainWindow& window) {
    double longest = 0;
    for (int part = 0; part < 300; ++part)
        longest = std::max(longest, seconds([&] { window.clock.run_for(20); }));
    return longest;
}

/// What the notes of one submit take, the least of all batches of a job.
double shortest_note(drafts::DraftKeeper& keeper) {
    double shortest = 1e9;
    const drafts::NotedJob noted(keeper);
    std::vector<std::size_t> rows(BATCH);
    for (std::size_t first = 0; first < ROWS; first += BATCH) {
        std::iota(rows.begin(), rows.end(), first);
        shortest = std::min(shortest, seconds([&] {
                                keeper.before_submit(rows);
                                keeper.after_submit(rows, [](platform::KeptRecipient& recipient) {
                                    recipient.checked = false;
                                });
                            }));
    }
    return shortest;
}

}  // namespace

int main() {
    std::string folder = "/dev/shm/zent-bench-XXXXXX";
    if (::mkdtemp(folder.data()) == nullptr) return 1;
    bool good = true;
    {
        tests::MainWindow window;
        machine::drafts::SqliteDraftStore store(folder, "/opt/zent");
        platform::Platform machine = tests::with(window.platform, {.drafts = &store});
        window.compose_as(u"홍길동");
        drafts::DraftKeeper keeper(machine, window.form);
        keeper.start();
        for (std::size_t row = 0; row < ROWS; ++row)
            window.form.recipients.add(u"홍길동", u"010" + platform::decimal(10'000'000 + row), u"과장");
        good &= bench::print_ratio_at_most("draft_part", longest_part(window) / FRAME,
                                           "the longest part of keeping 100,000 rows / 100 ms", 1);
        good &= bench::print_ratio_at_most("draft_notes", shortest_note(keeper) / SUBMIT,
                                           "the notes of a submit of 100 / 2 ms", 1);
    }
    std::filesystem::remove_all(folder);
    return good ? 0 : 1;
}
