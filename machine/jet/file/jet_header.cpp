#include "machine/jet/file/jet_header.h"

#include "machine/jet/file/jet_values.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <numeric>
#include <string>
#include <utility>

namespace machine::jet {

namespace {

constexpr std::string_view SIGNATURE("\0\1\0\0Standard Jet DB\0\1", 21);

// The enciphered part of the header and what is read from it, as positions in the file.
constexpr std::size_t CIPHER_START = 0x18;
constexpr std::size_t CIPHER_BYTES = 128;
constexpr std::size_t PASSWORD_START = 0x42;
constexpr std::size_t PASSWORD_BYTES = 40;
constexpr std::size_t CREATION_DATE_START = 0x72;

constexpr std::array<std::uint8_t, 4> CIPHER_KEY = {0xC7, 0xDA, 0x39, 0x6B};

/// Deciphers RC4 with the key that all headers share.
std::string deciphered(std::string_view bytes) {
    std::array<std::uint8_t, 256> state;
    std::iota(state.begin(), state.end(), std::uint8_t{0});
    std::uint8_t j = 0;
    for (std::size_t i = 0; i < state.size(); ++i) {
        j = static_cast<std::uint8_t>(j + state[i] + CIPHER_KEY[i % CIPHER_KEY.size()]);
        std::swap(state[i], state[j]);
    }

    std::string plain(bytes);
    std::uint8_t i = 0;
    j = 0;
    for (char& byte : plain) {
        j = static_cast<std::uint8_t>(j + state[++i]);
        std::swap(state[i], state[j]);
        byte = static_cast<char>(byte ^ state[static_cast<std::uint8_t>(state[i] + state[j])]);
    }
    return plain;
}

/// The file's creation day as a number, which masks the password.
std::uint32_t creation_day(std::string_view header) {
    const std::size_t at = CREATION_DATE_START - CIPHER_START;
    const auto date =
        std::bit_cast<double>(static_cast<std::uint64_t>(little_endian_32(header, at)) |
                              static_cast<std::uint64_t>(little_endian_32(header, at + 4)) << 32);
    if (!(std::abs(date) < 2147483648.0)) return 0;
    return static_cast<std::uint32_t>(static_cast<std::int32_t>(date));
}

}  // namespace

std::optional<JetHeader> JetHeader::read(std::string_view page) {
    if (page.size() < PAGE_BYTES || !page.starts_with(SIGNATURE)) return std::nullopt;

    const std::string header = deciphered(page.substr(CIPHER_START, CIPHER_BYTES));
    const std::uint32_t mask = creation_day(header);
    JetHeader found;
    for (std::size_t i = 0; i < PASSWORD_BYTES; i += 2) {
        const auto unit = static_cast<char16_t>(little_endian_16(header, PASSWORD_START - CIPHER_START + i) ^
                                                (mask >> 8 * (i % 4)));
        if (unit == 0) break;
        found.password += unit;
    }
    return found;
}

}  // namespace machine::jet
