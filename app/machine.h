#pragma once

#include "platform/ini/ini_settings.h"
#include "platform/jet/jet_card_source.h"
#include "platform/ports/platform.h"
#include "platform/posix/posix_carrier_library.h"
#include "platform/posix/posix_files.h"
#include "platform/posix/posix_shell.h"
#include "platform/qt/keep_painted.h"
#include "platform/qt/late_recorder.h"
#include "platform/qt/lazy_internet.h"
#include "platform/qt/qt_desktop.h"

#include <utility>

namespace app {

/// The ports made real by POSIX and Qt, over a clock that must outlive them.
struct Machine {
    Machine(const platform::posix::Paths& paths, platform::posix::PosixFiles machine_files,
            platform::Clock& clock)
        : files(std::move(machine_files)),
          shell(paths),
          cards(paths, platform::qt::keep_painted),
          platform{.desktop = desktop,
                   .clock = clock,
                   .files = files,
                   .settings = settings,
                   .shell = shell,
                   .carrier = carrier,
                   .cards = cards,
                   .recorder = recorder,
                   .internet = internet} {}

    platform::posix::PosixFiles files;
    platform::IniSettings settings{files};
    platform::posix::PosixShell shell;
    platform::posix::PosixCarrierLibrary carrier;
    platform::jet::JetCardSource cards;
    platform::qt::LateRecorder recorder;
    platform::qt::LazyInternet internet;
    platform::qt::Screens screens = platform::qt::program_screens();
    platform::qt::QtDesktop desktop{screens, files};
    platform::Platform platform;
};

}  // namespace app
