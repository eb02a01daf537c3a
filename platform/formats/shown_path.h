#pragma once

#include "platform/text/text.h"

namespace platform {

/// A file's path as a user knows it: the name first, then the folder in the operating system's spelling.
Text shown_path(TextView path);

}  // namespace platform
