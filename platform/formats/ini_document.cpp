#include "platform/formats/ini_document.h"

#include "platform/text/cp949.h"

#include <algorithm>
#include <cstddef>

namespace platform::ini {

namespace {

constexpr std::string_view BLANKS = " \t\v\f";
constexpr std::string_view LINE_ENDS = "\r\n";
constexpr std::string_view NEW_LINE = "\r\n";

std::string_view without_blanks(std::string_view bytes) {
    const auto first = bytes.find_first_not_of(BLANKS);
    if (first == std::string_view::npos) return {};
    return bytes.substr(first, bytes.find_last_not_of(BLANKS) + 1 - first);
}

std::string_view without_quotes(std::string_view value) {
    const bool quoted =
        value.size() >= 2 && value.front() == value.back() && (value.front() == '"' || value.front() == '\'');
    return quoted ? value.substr(1, value.size() - 2) : value;
}

std::string_view first_line(std::string_view bytes) {
    return bytes.substr(0, bytes.find_first_of(LINE_ENDS));
}

char lower_case(char byte) { return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte; }

/// Ignores the case of ASCII letters, but not in the second byte of a character, which may look like a
/// letter: the bytes 81 41 and 81 61 are different names.
bool same_name(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (lower_case(a[i]) != lower_case(b[i])) return false;
        if (is_cp949_lead(a[i]) && i + 1 < a.size()) {
            ++i;
            if (a[i] != b[i]) return false;
        }
    }
    return true;
}

/// The name of the section that a trimmed line begins; nothing for any other line. Text after the closing
/// bracket does not count.
std::optional<std::string_view> section_name(std::string_view line) {
    if (line.empty() || line.front() != '[') return std::nullopt;
    const auto bracket = line.find(']');
    if (bracket == std::string_view::npos) return std::nullopt;
    return without_blanks(line.substr(1, bracket - 1));
}

/// Where a key stands in a document, or where it would have to be put.
struct Place {
    bool section_found = false;
    std::size_t section_end = 0;                // after the section's last line that is not blank
    std::optional<std::string_view> raw_value;  // a part of the document, to the end of the line
};

Place locate(std::string_view bytes, std::string_view section, std::string_view key) {
    Place place;
    for (std::size_t begin = 0; begin < bytes.size();) {
        const std::size_t line_end = std::min(bytes.find_first_of(LINE_ENDS, begin), bytes.size());
        const std::string_view raw_line = bytes.substr(begin, line_end - begin);
        begin = line_end + (bytes.substr(line_end, NEW_LINE.size()) == NEW_LINE ? 2 : 1);

        const std::string_view line = without_blanks(raw_line);
        if (const auto name = section_name(line)) {
            if (place.section_found) break;
            place.section_found = same_name(*name, section);
        }
        if (!place.section_found || line.empty()) continue;
        place.section_end = std::min(begin, bytes.size());

        // Comments need no check of their own: no key begins with a semicolon.
        const auto equals = raw_line.find('=');
        if (equals != std::string_view::npos && same_name(without_blanks(raw_line.substr(0, equals)), key)) {
            place.raw_value = raw_line.substr(equals + 1);
            break;
        }
    }
    return place;
}

}  // namespace

std::optional<std::string> read(std::string_view bytes, std::string_view section, std::string_view key) {
    const Place place = locate(bytes, without_blanks(section), without_blanks(key));
    if (!place.raw_value) return std::nullopt;
    return std::string(without_quotes(without_blanks(*place.raw_value)));
}

std::string write(std::string_view bytes, std::string_view section, std::string_view key,
                  std::string_view value) {
    const std::string_view section_name = without_blanks(first_line(section));
    const std::string_view key_name = without_blanks(first_line(key));
    const std::string_view written = first_line(value);
    const Place place = locate(bytes, section_name, key_name);

    std::string document(bytes);
    if (place.raw_value) {
        const auto at = static_cast<std::size_t>(place.raw_value->data() - bytes.data());
        return document.replace(at, place.raw_value->size(), written);
    }

    const std::size_t at = place.section_found ? place.section_end : bytes.size();
    std::string lines;
    if (at > 0 && LINE_ENDS.find(bytes[at - 1]) == std::string_view::npos) lines += NEW_LINE;
    if (!place.section_found) lines.append("[").append(section_name).append("]").append(NEW_LINE);
    lines.append(key_name).append("=").append(written).append(NEW_LINE);
    return document.insert(at, lines);
}

}  // namespace platform::ini
