#pragma once

#include "platform/controls/event.h"
#include "platform/ports/clock.h"
#include "platform/text/text.h"

#include <memory>

namespace platform {

/// Raises its event every so many milliseconds while it is enabled. Disabled at first.
class Timer {
  public:
    Timer(Clock& clock, int milliseconds) : clock_(clock), milliseconds_(milliseconds) {}

    bool enabled() const { return ticker_ != nullptr; }
    void set_enabled(bool on);

    const Text& tag() const { return tag_; }
    void set_tag(Text tag) { tag_ = std::move(tag); }

    Event<> Tick;

  private:
    Clock& clock_;
    int milliseconds_;
    Text tag_;
    std::unique_ptr<Ticker> ticker_;
};

}  // namespace platform
