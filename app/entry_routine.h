#pragma once

#include "core/app_state.h"
#include "platform/ports/platform.h"

#include <functional>

namespace app {

/// The program's first steps, up to the main window. Returns false, with nothing shown and nothing written,
/// when another instance is running: the process is to end then.
bool entry_routine(platform::Platform& platform, core::AppState& state,
                   const std::function<void()>& show_main_form);

}  // namespace app
