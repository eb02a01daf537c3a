#include "platform/text/unknown_encoding.h"

#include "platform/text/cp949.h"

#include <algorithm>
#include <cstddef>

namespace platform {

namespace {

constexpr char16_t BROKEN = 0xFFFD;

enum class ByteOrder { little_endian, big_endian };

Text decode_utf16(std::string_view bytes, ByteOrder order) {
    const std::size_t high = order == ByteOrder::little_endian ? 1 : 0;
    Text text;
    text.reserve(bytes.size() / 2);
    for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
        const auto byte = [&](std::size_t offset) {
            return static_cast<unsigned>(static_cast<unsigned char>(bytes[at + offset]));
        };
        text += static_cast<char16_t>(byte(high) << 8U | byte(1 - high));
    }
    return text;
}

}  // namespace

Text text_of_any_encoding(std::string_view bytes) {
    if (bytes.starts_with("\xFF\xFE"))
        return blanks_for_nul(decode_utf16(bytes.substr(2), ByteOrder::little_endian));
    if (bytes.starts_with("\xFE\xFF"))
        return blanks_for_nul(decode_utf16(bytes.substr(2), ByteOrder::big_endian));
    // Without a mark, a digit, blank or line end of UTF-16 gives it away: half of it is a NUL.
    if (const std::size_t nul = bytes.find('\0'); nul != std::string_view::npos && bytes.size() % 2 == 0)
        return blanks_for_nul(
            decode_utf16(bytes, nul % 2 == 1 ? ByteOrder::little_endian : ByteOrder::big_endian));
    if (bytes.starts_with("\xEF\xBB\xBF")) bytes.remove_prefix(3);
    Text text = from_utf8(bytes);
    if (contains(text, TextView(&BROKEN, 1))) text = decode_cp949(bytes);
    return blanks_for_nul(std::move(text));
}

}  // namespace platform
