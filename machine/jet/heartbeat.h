#pragma once

#include <chrono>
#include <functional>
#include <utility>

namespace machine::jet {

/// Keeps the window painted during long work, which has to call `beat()` often.
class Heartbeat {
  public:
    /// The longest time without a beat that work may spend waiting.
    static constexpr std::chrono::milliseconds INTERVAL{10};

    explicit Heartbeat(std::function<void()> keep_alive) : keep_alive_(std::move(keep_alive)) {}

    /// Cheap when the last beat was less than INTERVAL ago.
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
