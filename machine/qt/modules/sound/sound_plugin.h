#pragma once

#include "machine/qt/modules/sound/sound_module.h"

#include <QObject>

namespace machine::qt {

class SoundPlugin : public QObject, public SoundModule {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "zent.SoundModule/1")
    Q_INTERFACES(machine::qt::SoundModule)

  public:
    std::unique_ptr<platform::Recorder> make_recorder() const override;
};

}  // namespace machine::qt
