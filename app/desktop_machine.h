#pragma once

#include "machine/carrier/hosted_carrier_library.h"
#include "machine/drafts/sqlite_draft_store.h"
#include "machine/jet/jet_card_source.h"
#include "machine/posix/posix_files.h"
#include "machine/posix/posix_shell.h"
#include "machine/qt/desktop/long_work.h"
#include "machine/qt/desktop/qt_desktop.h"
#include "machine/qt/modules/late_ports.h"
#include "platform/formats/ini_settings.h"
#include "platform/ports/platform.h"

namespace app {

/// The desktop machine: files by POSIX, the carrier's library in a process of its own, windows, sound and the
/// network by Qt, cards out of the card manager's Jet file. The clock has to outlive it.
struct DesktopMachine {
    DesktopMachine(const machine::posix::Paths& paths, platform::Clock& clock)
        : files(paths),
          shell(paths),
          carrier(paths.program("carrier-host"), machine::qt::keep_painted),
          cards(paths, machine::qt::keep_painted),
          drafts(paths.windows_directory(), paths.application_directory()),
          desktop(screens, files, QString::fromStdString(paths.windows_directory() + "/layout.ini")),
          platform{.desktop = desktop,
                   .clock = clock,
                   .files = files,
                   .settings = settings,
                   .shell = shell,
                   .carrier = carrier,
                   .cards = cards,
                   .recorder = recorder,
                   .internet = internet,
                   .drafts = drafts} {}

    machine::posix::PosixFiles files;
    platform::IniSettings settings{files};
    machine::posix::PosixShell shell;
    machine::carrier::HostedCarrierLibrary carrier;
    machine::jet::JetCardSource cards;
    machine::drafts::SqliteDraftStore drafts;
    machine::qt::LateRecorder recorder;
    machine::qt::LateInternet internet;
    machine::qt::Screens screens = machine::qt::program_screens();
    machine::qt::QtDesktop desktop;
    platform::Platform platform;
};

}  // namespace app
