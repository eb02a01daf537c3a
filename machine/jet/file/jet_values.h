#pragma once

#include "platform/text/text.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace machine::jet {

/// Decodes a text field: UTF-16, or after a mark alternating runs of single bytes and UTF-16 with a NUL at
/// each change. Nothing when the bytes end inside a character.
std::optional<platform::Text> decode_jet_text(std::string_view bytes);

/// The number at `at`, least byte first. The caller has checked the length.
inline std::uint16_t little_endian_16(std::string_view bytes, std::size_t at) {
    return static_cast<std::uint16_t>(static_cast<unsigned char>(bytes[at]) |
                                      static_cast<unsigned char>(bytes[at + 1]) << 8);
}
inline std::uint32_t little_endian_32(std::string_view bytes, std::size_t at) {
    return little_endian_16(bytes, at) | static_cast<std::uint32_t>(little_endian_16(bytes, at + 2)) << 16;
}

}  // namespace machine::jet
