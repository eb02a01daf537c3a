#include "platform/qt/late_recorder.h"

#include "platform/error.h"
#include "platform/qt/sound_module.h"

#include <QPluginLoader>

namespace platform::qt {

void LateRecorder::open(Listener& listener) {
    if (recorder_ == nullptr) {
        auto* sound = qobject_cast<SoundModule*>(QPluginLoader(QStringLiteral("zent_sound")).instance());
        if (sound == nullptr) throw RuntimeError(ErrorNumber::library_not_loaded);
        recorder_ = sound->make_recorder();
    }
    recorder_->open(listener);
}

}  // namespace platform::qt
