#pragma once

#include "platform/ports/card_source.h"
#include "platform/ports/carrier_library.h"
#include "platform/ports/clock.h"
#include "platform/ports/desktop.h"
#include "platform/ports/draft_store.h"
#include "platform/ports/files.h"
#include "platform/ports/internet.h"
#include "platform/ports/recorder.h"
#include "platform/ports/settings.h"
#include "platform/ports/shell.h"

namespace platform {

/// Everything that the system needs from the machine, for the classes that need some of it.
struct Platform {
    Desktop& desktop;
    Clock& clock;
    Files& files;
    Settings& settings;
    Shell& shell;
    CarrierLibrary& carrier;
    CardSource& cards;
    Recorder& recorder;
    Internet& internet;
    DraftStore& drafts;
};

}  // namespace platform
