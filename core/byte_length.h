#pragma once

#include "platform/text/text.h"

#include <cstddef>

namespace core {

/// Bytes of the text in cp949. Every limit of a message is counted with this and never by characters.
std::size_t BYTE_LEN(platform::TextView text);

/// Trims the text at its right, in place, and returns as much of its beginning as fits into the bytes of
/// cp949. A character that would straddle the limit goes whole, so the result can be a byte shorter.
platform::Text LLL(platform::Text& text, std::size_t limit);

}  // namespace core
