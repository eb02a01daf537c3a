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

/// A disk that takes no draft and holds none.
class NoDrafts : public platform::DraftStore {
  public:
    std::optional<platform::KeptDraft> next() override { return std::nullopt; }
    void read_recipients(const std::function<void(platform::KeptRecipient)>&) override {}
    void take_up() override {}
    void decline() override {}
    void put_field(platform::TextView, const platform::Text&) override {}
    void put_recipient(std::size_t, const platform::KeptRecipient&) override {}
    void remove_recipients_from(std::size_t) override {}
    void commit(platform::LocalTime, bool) override {}
    platform::Text set_aside() override { return {}; }
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
    NoDrafts drafts;
    platform::Platform platform{.desktop = desktop,
                                .clock = clock,
                                .files = files,
                                .settings = settings,
                                .shell = shell,
                                .carrier = carrier,
                                .cards = cards,
                                .recorder = recorder,
                                .internet = internet,
                                .drafts = drafts};
    core::AppState state;

    platform::Text app_ini = u"z:\\app\\zent.ini";
    platform::Text login_ini = u"z:\\windows\\zent.ini";

    /// The same machine with another desktop.
    platform::Platform on(platform::Desktop& other) { return with(platform, {.desktop = &other}); }
};

}  // namespace tests
