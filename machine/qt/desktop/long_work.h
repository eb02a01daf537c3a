#pragma once

#include "platform/ports/desktop.h"

#include <QElapsedTimer>
#include <QPoint>
#include <array>
#include <cstdint>

/// What work needs that keeps the event loop waiting: windows that stay painted, and news of the user's
/// input.
namespace machine::qt {

/// Paints what waits to be painted and does nothing else: keys and clicks wait for the end of the work, and
/// timers do not tick.
void keep_painted();

/// Whether keep_painted() is running.
bool is_keeping_painted();

/// The keys and buttons that are down, and where the mouse is.
struct InputState {
    /// A bit for each key.
    std::array<std::uint8_t, 32> keys{};
    std::uint32_t buttons = 0;
    QPoint mouse;
};

/// Notices the user's input without handling events: it asks the X server for the state of keys, buttons and
/// mouse. On other desktops it sees the mouse only.
class QtInputWatch : public platform::InputWatch {
  public:
    QtInputWatch();

    bool input_waits() override;

  private:
    InputState at_start_;
    QElapsedTimer asked_;
    bool waits_ = false;
};

/// Whether the user has done something in our windows between the two states. Letting a key or button go does
/// not count.
bool user_acted(const InputState& before, const InputState& now);

}  // namespace machine::qt
