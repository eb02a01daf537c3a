#pragma once

#include "platform/text/text.h"

#include <cstddef>

namespace core {

/// Bytes of the text in cp949. Every limit of a message is counted with this and never by characters.
std::size_t BYTE_LEN(platform::TextView text);

/// Trims the end of the text in place and returns the longest beginning that fits into `limit` bytes of
/// cp949. No character is split, so the result can be a byte shorter than the limit.
platform::Text LLL(platform::Text& text, std::size_t limit);

/// How many messages of at most `limit` bytes the text goes in.
int count_pieces(platform::TextView text, std::size_t limit);

}  // namespace core
