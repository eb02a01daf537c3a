#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace standin {

/// The cp949 bytes as UTF-8, a '?' for each byte that means nothing.
std::string utf8_from_cp949(std::string_view bytes);

/// The UTF-8 text as cp949 bytes, a '?' for each character that cp949 lacks.
std::string cp949_from_utf8(std::string_view text);

/// The longest beginning of the cp949 bytes that is no longer than `limit` and ends with a whole character.
std::string_view whole_characters(std::string_view bytes, std::size_t limit);

}  // namespace standin
