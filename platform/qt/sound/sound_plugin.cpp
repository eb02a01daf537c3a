#include "platform/qt/sound/sound_plugin.h"

#include "platform/qt/sound/qt_recorder.h"

namespace platform::qt {

std::unique_ptr<Recorder> SoundPlugin::make_recorder() { return std::make_unique<QtRecorder>(); }

}  // namespace platform::qt
