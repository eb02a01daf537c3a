#include "standin/cp949.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <iconv.h>
#include <stdexcept>

namespace standin {
namespace {

constexpr const char* cp949 = "CP949";
constexpr const char* utf8 = "UTF-8";

bool continues_utf8(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

/// Converts all of `input`; where the converter stops, `skipped` returns how many bytes become one '?'.
template <typename Skipped>
std::string convert(std::string_view input, const char* from, const char* to, Skipped skipped) {
    const iconv_t converter = iconv_open(to, from);
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the value that iconv_open returns on failure.
    if (converter == reinterpret_cast<iconv_t>(-1)) {
        throw std::runtime_error(std::string("no conversion from ") + from + " to " + to);
    }
    std::string output;
    std::string bytes(input);
    char* next = bytes.data();
    std::size_t left = bytes.size();
    while (left > 0) {
        std::array<char, 512> piece;
        char* end = piece.data();
        std::size_t room = piece.size();
        const std::size_t done = iconv(converter, &next, &left, &end, &room);
        const bool stuck = done == static_cast<std::size_t>(-1) && errno != E2BIG;
        output.append(piece.data(), end);
        if (stuck) {
            const std::size_t count = skipped(std::string_view(next, left));
            output += '?';
            next += count;
            left -= count;
        }
    }
    iconv_close(converter);
    return output;
}

}  // namespace

std::string utf8_from_cp949(std::string_view bytes) {
    return convert(bytes, cp949, utf8, [](std::string_view) { return std::size_t{1}; });
}

std::string cp949_from_utf8(std::string_view text) {
    return convert(text, utf8, cp949, [](std::string_view rest) {
        const auto end = std::find_if_not(rest.begin() + 1, rest.end(), continues_utf8);
        return static_cast<std::size_t>(end - rest.begin());
    });
}

std::string_view whole_characters(std::string_view bytes, std::size_t limit) {
    std::size_t length = 0;
    while (length < bytes.size()) {
        const std::size_t width = static_cast<unsigned char>(bytes[length]) > 0x80 ? 2 : 1;
        if (length + width > std::min(limit, bytes.size())) {
            break;
        }
        length += width;
    }
    return bytes.substr(0, length);
}

}  // namespace standin
