#pragma once

#include "platform/ports/platform.h"

namespace tests {

/// Ports that replace a machine's own; those left out stay the machine's.
struct OtherPorts {
    platform::Desktop* desktop = nullptr;
    platform::Clock* clock = nullptr;
    platform::Files* files = nullptr;
    platform::CarrierLibrary* carrier = nullptr;
    platform::CardSource* cards = nullptr;
    platform::Recorder* recorder = nullptr;
    platform::Internet* internet = nullptr;
    platform::DraftStore* drafts = nullptr;
};

/// The machine with some ports replaced.
inline platform::Platform with(const platform::Platform& machine, const OtherPorts& other) {
    const auto pick = [](auto* port, auto& own) -> auto& { return port != nullptr ? *port : own; };
    return {.desktop = pick(other.desktop, machine.desktop),
            .clock = pick(other.clock, machine.clock),
            .files = pick(other.files, machine.files),
            .settings = machine.settings,
            .shell = machine.shell,
            .carrier = pick(other.carrier, machine.carrier),
            .cards = pick(other.cards, machine.cards),
            .recorder = pick(other.recorder, machine.recorder),
            .internet = pick(other.internet, machine.internet),
            .drafts = pick(other.drafts, machine.drafts)};
}

}  // namespace tests
