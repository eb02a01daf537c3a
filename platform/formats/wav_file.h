#pragma once

#include "platform/ports/recorder.h"

#include <string>

namespace platform {

/// The bytes of a WAV file that holds the samples uncompressed.
std::string wav_file(SampleView samples);

}  // namespace platform
