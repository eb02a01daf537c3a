#pragma once

#include "platform/ports/recorder.h"

namespace platform {

/// How loud the loudest sample is, from 0 (silence, or a hum that nobody hears) to 100 (as loud as the
/// samples can say), as the ear counts.
int loudness(SampleView samples);

}  // namespace platform
