#include "core/byte_length.h"

#include "platform/text/cp949.h"

namespace core {

using platform::Text;

namespace {

/// How many characters at the beginning fit into that many bytes.
std::size_t fitting_length(platform::TextView text, std::size_t limit) {
    std::size_t bytes = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        bytes += platform::cp949_bytes(text[i]);
        if (bytes > limit) return i;
    }
    return text.size();
}

}  // namespace

std::size_t BYTE_LEN(platform::TextView text) { return platform::cp949_length(text); }

Text LLL(Text& text, std::size_t limit) {
    text = platform::right_trim(text);
    return text.substr(0, fitting_length(text, limit));
}

int count_pieces(platform::TextView text, std::size_t limit) {
    const Text trimmed = platform::right_trim(text);
    int pieces = 0;
    for (platform::TextView rest = trimmed; !rest.empty(); ++pieces)
        rest.remove_prefix(fitting_length(rest, limit));
    return pieces;
}

}  // namespace core
