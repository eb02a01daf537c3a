#pragma once

#include "platform/text/text.h"

#include <chrono>

namespace send {

/// What a job does one after the other: batches, or people who each get a submit of their own.
struct Steps {
    int done = 0;
    int all = 0;
};

/// What a step is.
enum class Unit { batch, person };

/// How long the steps that are left will take: each as long as those before it took, and at least what the
/// job waits within one.
std::chrono::milliseconds time_left(Steps steps, std::chrono::milliseconds elapsed,
                                    std::chrono::milliseconds waits);

/// "1,234명".
platform::Text people(int count);

/// A length of time as one says it, as "약 3분".
platform::Text about(std::chrono::milliseconds time);

}  // namespace send
