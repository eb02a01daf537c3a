#pragma once

#include "platform/text/text.h"

#include <string_view>

namespace platform {

/// The text of a file that some other program wrote: UTF-16 or UTF-8, with or without a mark at its
/// beginning, or code page 949. A NUL becomes a blank.
Text text_of_any_encoding(std::string_view bytes);

}  // namespace platform
