#pragma once

#include "machine/qt/modules/sound_module.h"

#include <QObject>

namespace machine::qt {

/// What the program finds in the module.
class SoundPlugin : public QObject, public SoundModule {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "zent.SoundModule/1")
    Q_INTERFACES(machine::qt::SoundModule)

  public:
    std::unique_ptr<platform::Recorder> make_recorder() override;
};

}  // namespace machine::qt
