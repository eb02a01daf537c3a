#pragma once

#include "compose/main_form.h"
#include "platform/ports/platform.h"

namespace send {

/// Whether the draft's schedule lies far enough ahead; shows a box when it does not. An immediate message
/// passes.
bool schedule_is_possible(const platform::Platform& platform, compose::frmZent& form);

}  // namespace send
