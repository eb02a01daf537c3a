#pragma once

#include <chrono>
#include <functional>
#include <utility>

namespace machine::jet {

/// Lets the window paint during long work that says `beat()` again and again.
class Heartbeat {
  public:
    /// The longest that work may wait for something without a beat.
    static constexpr std::chrono::milliseconds INTERVAL{10};

    explicit Heartbeat(std::function<void()> keep_alive) : keep_alive_(std::move(keep_alive)) {}

    /// Cheap unless the last time has passed long enough ago.
    void beat() {
        if (!keep_alive_ || SteadyClock::now() - last_ < INTERVAL) return;
        keep_alive_();
        last_ = SteadyClock::now();
    }

  private:
    using SteadyClock = std::chrono::steady_clock;

    std::function<void()> keep_alive_;
    SteadyClock::time_point last_ = SteadyClock::now();
};

}  // namespace machine::jet
