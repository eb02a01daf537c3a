#pragma once

#include "compose/main_form.h"
#include "core/app_state.h"
#include "platform/ports/platform.h"

namespace send {

/// The click of the main window's send button: checks the draft, asks the user and sends. At the first fault
/// nothing is sent: a box names it, and the focus goes where it can be corrected.
void Command1_Click(platform::Platform& platform, core::AppState& state, compose::frmZent& form);

}  // namespace send
