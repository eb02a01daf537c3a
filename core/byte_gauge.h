#pragma once

#include "platform/controls/displays.h"

#include <cstddef>

namespace core {

/// Shows how full a text message is: a bar up to the limit, and in words what the count beside it does not
/// say.
class ByteGauge {
  public:
    /// `fill` and `note` are the names of the controls.
    ByteGauge(platform::Form& form, platform::TextView fill, platform::TextView note)
        : fill_(form, fill), note_(form, note) {}

    /// The note says in how many messages a text above the limit goes, and how many of its characters cannot
    /// be sent.
    void show(const platform::Text& text, std::size_t limit);

  private:
    platform::ProgressBar fill_;
    platform::Label note_;
};

}  // namespace core
