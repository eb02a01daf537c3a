#pragma once

#include "platform/ports/clock.h"

#include <functional>
#include <memory>
#include <vector>

namespace tests {

/// A clock that stands still until a test moves it. Timers fire while it moves, and pauses are recorded.
class VirtualClock : public platform::Clock {
  public:
    platform::LocalTime now() override { return now_; }
    double timer() override;
    void pause(int milliseconds) override;
    std::unique_ptr<platform::Ticker> every(int milliseconds, std::function<void()> tick) override;

    void set(platform::LocalTime now) { now_ = now; }
    /// Moves the time on and fires the timers that become due.
    void run_for(int milliseconds);
    /// Fires the timers in their order until the condition holds; false when none is left or a day has
    /// passed.
    bool run_until(const std::function<bool()>& done);

    /// Every pause in milliseconds, in order.
    std::vector<int> pauses;
    /// Runs within the next pauses, as clicks of the user would.
    std::function<void()> during_pause;

  private:
    struct Entry;
    class VirtualTicker;

    std::shared_ptr<Entry> next_due() const;
    void fire(Entry& entry);
    void advance_to(long long milliseconds);

    platform::LocalTime now_ = platform::make_time(2026, 11, 23, 10, 0, 0);
    long long elapsed_ = 0;
    std::vector<std::weak_ptr<Entry>> entries_;
};

}  // namespace tests
