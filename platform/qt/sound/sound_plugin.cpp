#include "platform/qt/sound/qt_recorder.h"
#include "platform/qt/sound_module.h"

#include <QObject>

namespace platform::qt {

class SoundPlugin : public QObject, public SoundModule {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "zent.SoundModule/1")
    Q_INTERFACES(platform::qt::SoundModule)

  public:
    std::unique_ptr<Recorder> make_recorder() override { return std::make_unique<QtRecorder>(); }
};

}  // namespace platform::qt

#include "sound_plugin.moc"
