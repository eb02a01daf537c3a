#pragma once

#include "platform/text/text.h"

#include <string>

namespace tests {

/// A text as a test compares it, so that a failure can be read.
inline std::string utf8(platform::TextView text) { return platform::to_utf8(text); }

}  // namespace tests
