#pragma once

#include "platform/ports/desktop.h"

#include <QElapsedTimer>
#include <QPoint>
#include <array>
#include <cstdint>

namespace machine::qt {

/// Keys and buttons that are down, and where the mouse is.
struct InputState {
    /// A bit for each key.
    std::array<std::uint8_t, 32> keys{};
    std::uint32_t buttons = 0;
    QPoint mouse;
};

/// Asks the desktop how keys, buttons and mouse stand now: events cannot be looked at without being handled.
/// The keys and buttons are X's; on other desktops the mouse alone is seen.
class QtInputWatch : public platform::InputWatch {
  public:
    QtInputWatch();

    bool input_waits() override;

  private:
    InputState at_start_;
    QElapsedTimer asked_;
    bool waits_ = false;
};

/// Whether the user has done something in our windows between the two: a key or button let go is nothing.
bool user_acted(const InputState& before, const InputState& now);

}  // namespace machine::qt
