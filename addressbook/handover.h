#pragma once

#include "compose/main_form.h"
#include "core/app_state.h"
#include "platform/ports/platform.h"

namespace addressbook {

/// Takes in what the card manager has handed over in files, if it has: recipients and the kind to send to
/// them, or a page of the service to open. While it works the main window's polling stands still.
void NEW_SENDMAN_LOAD(platform::Platform& platform, core::AppState& state, compose::frmZent& main_form);

}  // namespace addressbook
