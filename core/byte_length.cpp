#include "core/byte_length.h"

#include "platform/text/cp949.h"

namespace core {

using platform::Text;

std::size_t BYTE_LEN(platform::TextView text) { return platform::cp949_length(text); }

Text LLL(Text& text, std::size_t limit) {
    text = platform::right_trim(text);
    std::size_t bytes = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        bytes += platform::cp949_bytes(text[i]);
        if (bytes > limit) return text.substr(0, i);
    }
    return text;
}

int count_pieces(Text text, std::size_t limit) {
    int pieces = 0;
    for (text = platform::right_trim(text); !text.empty(); ++pieces) {
        const std::size_t piece = LLL(text, limit).size();
        text = platform::right_trim(text.substr(piece));
    }
    return pieces;
}

}  // namespace core
