#pragma once

#include "platform/qt/sound_module.h"

#include <QObject>

namespace platform::qt {

/// What the program finds in the module.
class SoundPlugin : public QObject, public SoundModule {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "zent.SoundModule/1")
    Q_INTERFACES(platform::qt::SoundModule)

  public:
    std::unique_ptr<Recorder> make_recorder() override;
};

}  // namespace platform::qt
