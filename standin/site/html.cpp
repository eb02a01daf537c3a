#include "standin/site/html.h"

namespace standin::site {
namespace {

/// A control character other than a tab or a line end.
bool is_control(char character) {
    const auto byte = static_cast<unsigned char>(character);
    return (byte < 0x20 && byte != '\t' && byte != '\n' && byte != '\r') || byte == 0x7F;
}

}  // namespace

Html& Html::operator<<(std::string_view text) {
    for (const char character : text) {
        switch (character) {
            case '&':
                bytes_ += "&amp;";
                break;
            case '<':
                bytes_ += "&lt;";
                break;
            case '>':
                bytes_ += "&gt;";
                break;
            case '"':
                bytes_ += "&quot;";
                break;
            case '\'':
                bytes_ += "&#39;";
                break;
            default:
                bytes_ += is_control(character) ? '?' : character;
        }
    }
    return *this;
}

Html& Html::operator<<(const Html& part) {
    bytes_ += part.bytes_;
    return *this;
}

std::string with_commas(std::int64_t number) {
    std::string digits = std::to_string(number);
    const std::size_t first = digits.starts_with('-') ? 1 : 0;
    for (std::size_t place = digits.size(); place > first + 3;) {
        place -= 3;
        digits.insert(place, 1, ',');
    }
    return digits;
}

}  // namespace standin::site
