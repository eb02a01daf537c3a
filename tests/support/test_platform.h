#pragma once

#include "core/app_state.h"
#include "platform/formats/ini_settings.h"
#include "platform/ports/platform.h"
#include "tests/support/memory_files.h"
#include "tests/support/other_ports.h"
#include "tests/support/recording_carrier.h"
#include "tests/support/scripted_cards.h"
#include "tests/support/scripted_desktop.h"
#include "tests/support/scripted_internet.h"
#include "tests/support/scripted_recorder.h"
#include "tests/support/virtual_clock.h"

namespace tests {

/// Thrown where the process would end, so that nothing after it runs.
struct ProcessEnded {};

class RecordingShell : public platform::Shell {
  public:
    void open(const platform::Text& path) override { opened.push_back(path); }
    void open_page(const platform::Text& address) override { pages.push_back(address); }
    [[noreturn]] void end_process() override { throw ProcessEnded(); }
    bool another_instance_runs() override { return another_instance; }

    std::vector<platform::Text> opened;
    std::vector<platform::Text> pages;
    bool another_instance = false;
};

/// A machine of doubles for the tests of the logic, and the shared variables of one run.
struct TestPlatform {
    VirtualClock clock;
    ScriptedDesktop desktop{clock};
    MemoryFiles files;
    platform::IniSettings settings{files};
    RecordingShell shell;
    RecordingCarrier carrier;
    ScriptedCards cards;
    ScriptedRecorder recorder;
    ScriptedInternet internet;
    platform::Platform platform{.desktop = desktop,
                                .clock = clock,
                                .files = files,
                                .settings = settings,
                                .shell = shell,
                                .carrier = carrier,
                                .cards = cards,
                                .recorder = recorder,
                                .internet = internet};
    core::AppState state;

    platform::Text app_ini = u"z:\\app\\zent.ini";
    platform::Text login_ini = u"z:\\windows\\zent.ini";

    /// The same machine with another desktop.
    platform::Platform on(platform::Desktop& other) { return with(platform, {.desktop = &other}); }
};

}  // namespace tests
