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

}  // namespace core
