#pragma once

#include "platform/ports/clock.h"

namespace platform::qt {

/// The machine's clock, and timers of the event loop.
class QtClock : public Clock {
  public:
    LocalTime now() override;
    void pause(int milliseconds) override;
    std::unique_ptr<Ticker> every(int milliseconds, std::function<void()> tick) override;
};

}  // namespace platform::qt
