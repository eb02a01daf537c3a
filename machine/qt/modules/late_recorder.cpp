#include "machine/qt/modules/late_recorder.h"

#include "machine/qt/modules/sound_module.h"
#include "platform/error.h"

#include <QPluginLoader>

namespace machine::qt {

using platform::ErrorNumber;
using platform::RuntimeError;

void LateRecorder::open(Listener& listener) {
    if (recorder_ == nullptr) {
        auto* sound = qobject_cast<SoundModule*>(QPluginLoader(QStringLiteral("zent_sound")).instance());
        if (sound == nullptr) throw RuntimeError(ErrorNumber::library_not_loaded);
        recorder_ = sound->make_recorder();
    }
    recorder_->open(listener);
}

}  // namespace machine::qt
