#pragma once

#include "platform/ports/recorder.h"

namespace platform {

/// How loud the loudest sample is, from 0 (silence, or a hum that nobody hears) to 100 (the loudest possible
/// sample), on a scale that suits the ear.
int loudness(SampleView samples);

}  // namespace platform
