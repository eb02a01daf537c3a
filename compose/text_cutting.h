#pragma once

#include "platform/text/text.h"

namespace compose {

/// Trims the text at its right, in place, and returns as much of its beginning as fits into the bytes of
/// cp949. A character that would straddle the limit goes whole, so the result can be a byte shorter.
platform::Text LLL(platform::Text& text, std::size_t limit);

}  // namespace compose
