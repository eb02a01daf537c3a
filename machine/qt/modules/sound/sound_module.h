#pragma once

#include "machine/qt/modules/load_module.h"
#include "platform/ports/recorder.h"

#include <memory>

namespace machine::qt {

/// Records and plays sound.
class SoundModule {
  public:
    static constexpr ModuleInfo MODULE{"녹음", "zent_sound", "cardvale-messaging-sound"};

    virtual ~SoundModule() = default;
    virtual std::unique_ptr<platform::Recorder> make_recorder() const = 0;
};

}  // namespace machine::qt

Q_DECLARE_INTERFACE(machine::qt::SoundModule, "zent.SoundModule/1")
