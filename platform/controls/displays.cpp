#include "platform/controls/displays.h"

#include "platform/error.h"

namespace platform {

void ProgressBar::set_value(int value) {
    if (value < 0 || value > 100) throw RuntimeError(ErrorNumber::invalid_property_value);
    assign(value_, value, Aspect::value);
}

}  // namespace platform
