#pragma once

#include "platform/text/text.h"

namespace compose {

/// Trims the end of the text in place and returns the longest beginning that fits into `limit` bytes of
/// cp949. No character is split, so the result can be a byte shorter than the limit.
platform::Text LLL(platform::Text& text, std::size_t limit);

}  // namespace compose
