#pragma once

#include "platform/text/text.h"

namespace platform {

/// The path in what file managers paste and drop, which may stand in quotation marks or be the address of a
/// file on this machine ("file:///home/a%20b.wav"). Any other text comes back trimmed.
Text pasted_path(TextView pasted);

}  // namespace platform
