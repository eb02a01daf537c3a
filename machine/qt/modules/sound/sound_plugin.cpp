#include "machine/qt/modules/sound/sound_plugin.h"

#include "machine/qt/modules/sound/qt_recorder.h"

namespace machine::qt {

using platform::Recorder;

std::unique_ptr<Recorder> SoundPlugin::make_recorder() const { return std::make_unique<QtRecorder>(); }

}  // namespace machine::qt
