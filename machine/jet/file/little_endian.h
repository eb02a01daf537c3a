#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace machine::jet {

/// The number that stands at `at`, least byte first; the caller has seen to it that it lies in the bytes.
inline std::uint16_t little_endian_16(std::string_view bytes, std::size_t at) {
    return static_cast<std::uint16_t>(static_cast<unsigned char>(bytes[at]) |
                                      static_cast<unsigned char>(bytes[at + 1]) << 8);
}
inline std::uint32_t little_endian_32(std::string_view bytes, std::size_t at) {
    return little_endian_16(bytes, at) | static_cast<std::uint32_t>(little_endian_16(bytes, at + 2)) << 16;
}

}  // namespace machine::jet
