#include "platform/text/text.h"

#include <algorithm>
#include <cstddef>

namespace platform {

namespace {

constexpr char32_t REPLACEMENT = 0xFFFD;

char16_t lower_case_unit(char16_t unit) {
    return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit - u'A' + u'a') : unit;
}

bool is_high_surrogate(char16_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool is_low_surrogate(char16_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

void append_utf8(std::string& out, char32_t point) {
    const auto tail = [&](int shift) { out += static_cast<char>(0x80 | ((point >> shift) & 0x3F)); };
    if (point < 0x80) {
        out += static_cast<char>(point);
    } else if (point < 0x800) {
        out += static_cast<char>(0xC0 | (point >> 6));
        tail(0);
    } else if (point < 0x10000) {
        out += static_cast<char>(0xE0 | (point >> 12));
        tail(6);
        tail(0);
    } else {
        out += static_cast<char>(0xF0 | (point >> 18));
        tail(12);
        tail(6);
        tail(0);
    }
}

void append_utf16(Text& out, char32_t point) {
    if (point < 0x10000) {
        out += static_cast<char16_t>(point);
    } else {
        out += static_cast<char16_t>(0xD800 + ((point - 0x10000) >> 10));
        out += static_cast<char16_t>(0xDC00 + ((point - 0x10000) & 0x3FF));
    }
}

/// Reads the code point at `at` and moves `at` past it. A broken sequence gives the replacement character and
/// skips only the bytes that could have begun a character, so that the next good one is not lost.
char32_t next_point(std::string_view bytes, std::size_t& at) {
    const auto lead = static_cast<unsigned char>(bytes[at++]);
    if (lead < 0x80) return lead;

    struct Form {
        unsigned char first, last;
        int tails;
        char32_t smallest;
    };
    constexpr Form FORMS[] = {{0xC2, 0xDF, 1, 0x80}, {0xE0, 0xEF, 2, 0x800}, {0xF0, 0xF4, 3, 0x10000}};
    const auto* form = std::find_if(std::begin(FORMS), std::end(FORMS),
                                    [&](const Form& f) { return lead >= f.first && lead <= f.last; });
    if (form == std::end(FORMS)) return REPLACEMENT;

    char32_t point = lead & (0x3F >> form->tails);
    for (int i = 0; i < form->tails; ++i) {
        if (at == bytes.size() || (static_cast<unsigned char>(bytes[at]) & 0xC0) != 0x80) return REPLACEMENT;
        point = (point << 6) | (static_cast<unsigned char>(bytes[at++]) & 0x3F);
    }
    const bool surrogate = point >= 0xD800 && point <= 0xDFFF;
    return point < form->smallest || point > 0x10FFFF || surrogate ? REPLACEMENT : point;
}

}  // namespace

Text right_trim(TextView text) {
    const auto last = text.find_last_not_of(u' ');
    return last == TextView::npos ? Text() : Text(text.substr(0, last + 1));
}

Text trim(TextView text) {
    const auto first = text.find_first_not_of(u' ');
    return first == TextView::npos ? Text() : right_trim(text.substr(first));
}

Text replace_all(TextView text, TextView what, TextView with) {
    if (what.empty()) return Text(text);
    Text out;
    out.reserve(text.size());
    std::size_t done = 0;
    for (auto at = text.find(what); at != TextView::npos; at = text.find(what, done)) {
        out.append(text.substr(done, at - done)).append(with);
        done = at + what.size();
    }
    return out.append(text.substr(done));
}

Text remove_all(TextView text, TextView what) { return replace_all(text, what, u""); }

Text blanks_for_nul(Text text) {
    std::ranges::replace(text, u'\0', u' ');
    return text;
}

std::vector<TextView> split(TextView text, char16_t separator) {
    std::vector<TextView> pieces;
    std::size_t begin = 0;
    for (auto end = text.find(separator); end != TextView::npos; end = text.find(separator, begin)) {
        pieces.push_back(text.substr(begin, end - begin));
        begin = end + 1;
    }
    pieces.push_back(text.substr(begin));
    return pieces;
}

Text with_line_feeds(TextView text) {
    Text out;
    out.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool line_end = text[at] == u'\r';
        out += line_end ? u'\n' : text[at];
        if (line_end && text.substr(at + 1).starts_with(u'\n')) ++at;
    }
    return out;
}

bool contains(TextView text, TextView what) { return text.find(what) != TextView::npos; }

Text lower_case(TextView text) {
    Text out(text);
    std::transform(out.begin(), out.end(), out.begin(), lower_case_unit);
    return out;
}

bool equal_without_case(TextView a, TextView b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char16_t x, char16_t y) { return lower_case_unit(x) == lower_case_unit(y); });
}

Text from_ascii(std::string_view ascii) { return Text(ascii.begin(), ascii.end()); }

std::string to_utf8(TextView text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i];
        if (is_high_surrogate(unit) && i + 1 < text.size() && is_low_surrogate(text[i + 1])) {
            append_utf8(out, 0x10000 + ((unit - 0xD800u) << 10) + (text[++i] - 0xDC00u));
        } else {
            append_utf8(out, is_high_surrogate(unit) || is_low_surrogate(unit) ? REPLACEMENT : unit);
        }
    }
    return out;
}

Text from_utf8(std::string_view bytes) {
    Text out;
    out.reserve(bytes.size());
    for (std::size_t at = 0; at < bytes.size();) append_utf16(out, next_point(bytes, at));
    return out;
}

}  // namespace platform
