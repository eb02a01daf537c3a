#pragma once

#include "compose/main_form.h"
#include "core/app_state.h"
#include "platform/ports/platform.h"

namespace update {

/// The check from the menu: looks for an update, offers it, and starts the installer or tells the user that
/// there is nothing to do.
void check_from_menu(platform::Platform& platform, core::AppState& state, compose::frmZent& form);

/// The check while the program starts: offers an update that is due, and shows a box only when the server was
/// not reached; false then.
bool check_at_start(platform::Platform& platform, core::AppState& state, compose::frmZent& form);

}  // namespace update
