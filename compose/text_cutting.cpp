#include "compose/text_cutting.h"

#include "platform/text/cp949.h"

namespace compose {

platform::Text LLL(platform::Text& text, std::size_t limit) {
    text = platform::right_trim(text);
    std::size_t bytes = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        bytes += platform::cp949_bytes(text[i]);
        if (bytes > limit) return text.substr(0, i);
    }
    return text;
}

}  // namespace compose
