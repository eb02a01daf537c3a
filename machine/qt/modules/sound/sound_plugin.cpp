#include "machine/qt/modules/sound/qt_recorder.h"
#include "machine/qt/modules/sound/sound_module.h"

#include <QObject>

namespace machine::qt {

/// The object that the program finds in the module.
class SoundPlugin : public QObject, public SoundModule {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "zent.SoundModule/1")
    Q_INTERFACES(machine::qt::SoundModule)

  public:
    std::unique_ptr<platform::Recorder> make_recorder() const override {
        return std::make_unique<QtRecorder>();
    }
};

}  // namespace machine::qt

#include "sound_plugin.moc"
