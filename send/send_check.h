#pragma once

#include "compose/main_form.h"
#include "core/app_state.h"
#include "platform/ports/platform.h"

namespace send {

/// The click of the main window's send button: checks the draft, asks the user and sends. The first fault
/// ends it, told to the user with the focus where it can be mended.
void Command1_Click(platform::Platform& platform, core::AppState& state, compose::frmZent& form);

}  // namespace send
