#pragma once

#include "platform/text/cp949_table.h"
#include "platform/text/text.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace platform {

/// The text in code page 949. A character that the page lacks becomes its closest equivalent, or one question
/// mark for each code unit.
std::string encode_cp949(TextView text);

/// The text for bytes of code page 949. A lead byte with a trail byte that makes no character becomes one
/// question mark for both; a lead byte at the end becomes one.
Text decode_cp949(std::string_view bytes);

/// The bytes of one code unit in code page 949: 1 or 2.
inline std::size_t cp949_bytes(char16_t unit) { return cp949_table::BYTES[unit]; }

/// The bytes of the text in code page 949.
std::size_t cp949_length(TextView text);

/// Whether a byte begins a double-byte character.
constexpr bool is_cp949_lead(char byte) {
    const auto value = static_cast<unsigned char>(byte);
    return value >= cp949_table::FIRST_LEAD && value <= cp949_table::LAST_LEAD;
}

/// The longest beginning of at most `limit` bytes that does not end in the middle of a double-byte character.
std::string cut_bytes(std::string_view bytes, std::size_t limit);

}  // namespace platform
