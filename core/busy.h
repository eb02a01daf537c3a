#pragma once

#include "platform/controls/displays.h"
#include "platform/ports/platform.h"

namespace core {

/// The hourglass for as long as this object lives. Not nestable: the end of an inner scope restores the
/// normal pointer for the outer one too.
class BusyPointer {
  public:
    explicit BusyPointer(platform::Desktop& desktop) : desktop_(desktop) {
        desktop_.set_pointer(platform::Pointer::hourglass);
    }
    ~BusyPointer() { desktop_.set_pointer(platform::Pointer::normal); }
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;

  private:
    platform::Desktop& desktop_;
};

/// The films that show while the carrier is asked: in the login forms, and in the window of a send job.
platform::Text login_film(const platform::Platform& platform);
platform::Text send_film(const platform::Platform& platform);

/// Opens the film, to stand on its first picture; false in an installation without it.
bool open_film(const platform::Platform& platform, platform::Animation& animation,
               const platform::Text& path);

/// Opens the film and plays it; false in an installation without it.
bool play_film(const platform::Platform& platform, platform::Animation& animation,
               const platform::Text& path);

}  // namespace core
