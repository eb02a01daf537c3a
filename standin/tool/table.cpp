#include "standin/tool/table.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>

namespace standin {
namespace {

struct Character {
    char32_t code;
    std::size_t length;
};

/// The first character of the text; a byte that begins no character counts as one.
Character first_character(std::string_view text) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const std::size_t length = byte(0) >= 0xF0 ? 4 : byte(0) >= 0xE0 ? 3 : byte(0) >= 0xC0 ? 2 : 1;
    if (length == 1 || length > text.size()) {
        return {byte(0), 1};
    }
    char32_t code = byte(0) & (0xFFU >> (length + 1));
    for (std::size_t i = 1; i < length; ++i) {
        code = code << 6 | (byte(i) & 0x3FU);
    }
    return {code, length};
}

std::size_t width(char32_t code) {
    struct Range {
        char32_t first, last;
    };
    static constexpr std::array<Range, 8> wide = {{{0x1100, 0x115F},
                                                   {0x2E80, 0xA4CF},
                                                   {0xAC00, 0xD7A3},
                                                   {0xF900, 0xFAFF},
                                                   {0xFE30, 0xFE6F},
                                                   {0xFF00, 0xFF60},
                                                   {0xFFE0, 0xFFE6},
                                                   {0x1F300, 0x1FAFF}}};
    const auto holds = [code](const Range& range) { return range.first <= code && code <= range.last; };
    return std::any_of(wide.begin(), wide.end(), holds) ? 2 : 1;
}

}  // namespace

std::size_t display_width(std::string_view text) {
    std::size_t columns = 0;
    while (!text.empty()) {
        const Character character = first_character(text);
        columns += width(character.code);
        text.remove_prefix(character.length);
    }
    return columns;
}

std::string shortened(std::string_view text, std::size_t columns) {
    if (display_width(text) <= columns) {
        return std::string(text);
    }
    std::size_t used = 1;  // the ellipsis
    std::size_t length = 0;
    while (length < text.size()) {
        const Character character = first_character(text.substr(length));
        used += width(character.code);
        if (used > columns) {
            break;
        }
        length += character.length;
    }
    return std::string(text.substr(0, length)) + "…";
}

std::string printable(std::string_view text) {
    std::string shown;
    while (!text.empty()) {
        const Character character = first_character(text);
        if (character.code == '\r') {
            shown += "\\r";
        } else if (character.code == '\n') {
            shown += "\\n";
        } else if (character.code < 0x20 || (character.code >= 0x7F && character.code < 0xA0)) {
            char escaped[8];
            std::snprintf(escaped, sizeof escaped, "\\x%02X", static_cast<unsigned>(character.code));
            shown += escaped;
        } else {
            shown += text.substr(0, character.length);
        }
        text.remove_prefix(character.length);
    }
    return shown;
}

void Table::print(std::ostream& out, std::string_view indent) const {
    std::vector<std::size_t> widths;
    for (const std::vector<std::string>& row : rows_) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t i = 0; i < row.size(); ++i) {
            widths[i] = std::max(widths[i], display_width(row[i]));
        }
    }
    for (const std::vector<std::string>& row : rows_) {
        std::string line(indent);
        for (std::size_t i = 0; i < row.size(); ++i) {
            line += row[i];
            line.append(widths[i] - display_width(row[i]) + 2, ' ');
        }
        line.erase(line.find_last_not_of(' ') + 1);
        out << line << '\n';
    }
}

}  // namespace standin
