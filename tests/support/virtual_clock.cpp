#include "tests/support/virtual_clock.h"

#include <algorithm>

namespace tests {

namespace {

constexpr long long A_DAY = 24LL * 60 * 60 * 1000;

}  // namespace

struct VirtualClock::Entry {
    int interval;
    long long due;
    std::function<void()> tick;
    /// An entry outlives its ticker when the ticker is destroyed in the entry's own tick.
    bool running = true;
};

class VirtualClock::VirtualTicker : public platform::Ticker {
  public:
    explicit VirtualTicker(std::shared_ptr<Entry> entry) : entry_(std::move(entry)) {}
    ~VirtualTicker() override { entry_->running = false; }

  private:
    std::shared_ptr<Entry> entry_;
};

double VirtualClock::timer() {
    return static_cast<double>(platform::time_of_day(now_).count()) +
           static_cast<double>(elapsed_ % 1000) / 1000;
}

void VirtualClock::pause(int milliseconds) {
    pauses.push_back(milliseconds);
    if (during_pause) during_pause();
    advance_to(elapsed_ + milliseconds);
}

std::unique_ptr<platform::Ticker> VirtualClock::every(int milliseconds, std::function<void()> tick) {
    auto entry = std::make_shared<Entry>(Entry{milliseconds, elapsed_ + milliseconds, std::move(tick)});
    entries_.push_back(entry);
    return std::make_unique<VirtualTicker>(std::move(entry));
}

void VirtualClock::run_for(int milliseconds) {
    const long long end = elapsed_ + milliseconds;
    while (true) {
        const auto entry = next_due();
        if (!entry || entry->due > end) break;
        fire(*entry);
    }
    advance_to(end);
}

bool VirtualClock::run_until(const std::function<bool()>& done) {
    const long long end = elapsed_ + A_DAY;
    while (!done()) {
        const auto entry = next_due();
        if (!entry || entry->due > end) return false;
        fire(*entry);
    }
    return true;
}

std::shared_ptr<VirtualClock::Entry> VirtualClock::next_due() const {
    std::shared_ptr<Entry> next;
    for (const auto& weak : entries_) {
        const auto entry = weak.lock();
        if (entry && entry->running && (!next || entry->due < next->due)) next = entry;
    }
    return next;
}

void VirtualClock::fire(Entry& entry) {
    advance_to(std::max(entry.due, elapsed_));
    entry.due = elapsed_ + entry.interval;
    const auto tick = entry.tick;
    tick();
    std::erase_if(entries_, [](const auto& weak) { return weak.expired(); });
}

void VirtualClock::advance_to(long long milliseconds) {
    now_ += std::chrono::seconds(milliseconds / 1000 - elapsed_ / 1000);
    elapsed_ = milliseconds;
}

}  // namespace tests
