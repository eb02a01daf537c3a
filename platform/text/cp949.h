#pragma once

#include "platform/text/cp949_table.h"
#include "platform/text/text.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

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

/// A run of code units of a text.
struct TextRange {
    std::size_t start = 0;
    std::size_t length = 0;

    bool operator==(const TextRange&) const = default;
};

/// The characters that become question marks in code page 949, in order. What a reader sees as one, an emoji
/// with its skin colour or several joined, is one range.
std::vector<TextRange> lost_in_cp949(TextView text);

/// The text without those characters.
Text without_lost_in_cp949(TextView text);

/// Whether a byte begins a double-byte character.
constexpr bool is_cp949_lead(char byte) {
    const auto value = static_cast<unsigned char>(byte);
    return value >= cp949_table::FIRST_LEAD && value <= cp949_table::LAST_LEAD;
}

/// The longest beginning of at most `limit` bytes that does not end in the middle of a double-byte character.
std::string cut_bytes(std::string_view bytes, std::size_t limit);

}  // namespace platform
