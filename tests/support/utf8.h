#pragma once

#include "platform/text/text.h"

#include <string>

namespace tests {

/// A text in a form that a test can compare and a failure can print.
inline std::string utf8(platform::TextView text) { return platform::to_utf8(text); }

}  // namespace tests
