#include "platform/controls/timer.h"

namespace platform {

void Timer::set_enabled(bool on) {
    if (on == enabled()) return;
    if (on) {
        ticker_ = clock_.every(milliseconds_, [this] { Tick.raise(); });
    } else {
        ticker_.reset();
    }
}

}  // namespace platform
