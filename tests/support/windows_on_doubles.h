#pragma once

#include "core/app_state.h"
#include "machine/qt/desktop/qt_desktop.h"
#include "tests/support/test_platform.h"

namespace tests {

/// Real windows of the program's screens on a machine whose other parts are doubles.
struct WindowsOnDoubles {
    TestPlatform machine;
    machine::qt::Screens screens = machine::qt::program_screens();
    machine::qt::QtDesktop desktop{screens, machine.files};
    platform::Platform platform = machine.on(desktop);
    core::AppState& state = machine.state;
};

}  // namespace tests
