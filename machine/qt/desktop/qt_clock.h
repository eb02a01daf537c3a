#pragma once

#include "platform/ports/clock.h"

#include <cstdint>

namespace machine::qt {

/// The machine's clock, and timers of the event loop.
class QtClock : public platform::Clock {
  public:
    platform::LocalTime now() override;
    double timer() override;
    void pause(int milliseconds) override;
    std::unique_ptr<platform::Ticker> every(int milliseconds, std::function<void()> tick) override;

  private:
    /// The local time's offset in milliseconds, and the second in which it was read.
    std::int64_t zone_ = 0;
    std::int64_t zone_asked_at_ = -1;
};

}  // namespace machine::qt
