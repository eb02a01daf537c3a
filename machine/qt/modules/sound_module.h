#pragma once

#include "platform/ports/recorder.h"

#include <QtPlugin>
#include <memory>

namespace machine::qt {

/// What plays and records sound. The libraries behind it take their time, so it is a module of its own that
/// only a recorder's first use loads: what the program and the module know of each other is this file.
class SoundModule {
  public:
    virtual ~SoundModule() = default;
    virtual std::unique_ptr<platform::Recorder> make_recorder() = 0;
};

}  // namespace machine::qt

Q_DECLARE_INTERFACE(machine::qt::SoundModule, "zent.SoundModule/1")
