#pragma once

#include "platform/text/calendar.h"

#include <functional>
#include <memory>

namespace platform {

/// A running timer. Destroying it stops it.
class Ticker {
  public:
    virtual ~Ticker() = default;
};

/// Time as the user sees it. A port, so that a test can send for an hour in milliseconds.
class Clock {
  public:
    virtual ~Clock() = default;

    virtual LocalTime now() = 0;
    /// Seconds since midnight with their fraction.
    virtual double timer() = 0;
    /// Waits for so many milliseconds; windows paint and buttons work meanwhile.
    virtual void pause(int milliseconds) = 0;
    virtual std::unique_ptr<Ticker> every(int milliseconds, std::function<void()> tick) = 0;
};

}  // namespace platform
