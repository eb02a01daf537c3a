#include "platform/text/cp949.h"

#include <cstdint>

namespace platform {

namespace table = cp949_table;

namespace {

char16_t pair_character(char lead_byte, char trail_byte) {
    const auto lead = static_cast<unsigned char>(lead_byte);
    const auto trail = static_cast<unsigned char>(trail_byte);
    if (trail < table::FIRST_TRAIL || trail > table::LAST_TRAIL) return u'?';
    return table::DECODE_DOUBLE[(lead - table::FIRST_LEAD) * table::TRAILS + trail - table::FIRST_TRAIL];
}

bool is_lost(char16_t unit) { return table::ENCODE[unit] == u'?' && unit != u'?'; }

bool is_pair(TextView text, std::size_t at) {
    return (text[at] & 0xFC00) == 0xD800 && at + 1 < text.size() && (text[at + 1] & 0xFC00) == 0xDC00;
}

constexpr char16_t JOINER = u'\u200D';
constexpr char16_t KEYCAP = u'\u20E3';

/// Whether what begins there belongs to the character in front of it.
bool continues_character(TextView text, std::size_t at) {
    const char16_t unit = text[at];
    const bool is_variant = unit >= u'\uFE00' && unit <= u'\uFE0F';
    const bool is_skin_colour =
        is_pair(text, at) && unit == 0xD83C && text[at + 1] >= 0xDFFB && text[at + 1] <= 0xDFFF;
    return unit == JOINER || unit == KEYCAP || is_variant || is_skin_colour || text[at - 1] == JOINER;
}

}  // namespace

std::string encode_cp949(TextView text) {
    std::string out;
    out.reserve(cp949_length(text));
    for (const char16_t unit : text) {
        const std::uint16_t bytes = table::ENCODE[unit];
        if (bytes > 0xFF) out += static_cast<char>(bytes >> 8);
        out += static_cast<char>(bytes & 0xFF);
    }
    return out;
}

Text decode_cp949(std::string_view bytes) {
    Text out;
    out.reserve(bytes.size());
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        if (is_cp949_lead(bytes[at]) && at + 1 < bytes.size()) {
            out += pair_character(bytes[at], bytes[at + 1]);
            ++at;
        } else {
            out += table::DECODE_SINGLE[static_cast<unsigned char>(bytes[at])];
        }
    }
    return out;
}

std::size_t cp949_length(TextView text) {
    // Four independent sums are twice as fast as one.
    std::size_t length[4] = {};
    std::size_t i = 0;
    for (; i + 4 <= text.size(); i += 4) {
        length[0] += cp949_bytes(text[i]);
        length[1] += cp949_bytes(text[i + 1]);
        length[2] += cp949_bytes(text[i + 2]);
        length[3] += cp949_bytes(text[i + 3]);
    }
    for (; i < text.size(); ++i) length[0] += cp949_bytes(text[i]);
    return length[0] + length[1] + length[2] + length[3];
}

std::vector<TextRange> lost_in_cp949(TextView text) {
    std::vector<TextRange> lost;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t size = is_pair(text, at) ? 2 : 1;
        if (is_lost(text[at])) {
            const bool follows = !lost.empty() && lost.back().start + lost.back().length == at;
            if (follows && continues_character(text, at)) {
                lost.back().length += size;
            } else {
                lost.push_back({at, size});
            }
        }
        at += size;
    }
    return lost;
}

Text without_lost_in_cp949(TextView text) {
    Text kept;
    std::size_t at = 0;
    for (const TextRange& range : lost_in_cp949(text)) {
        kept += text.substr(at, range.start - at);
        at = range.start + range.length;
    }
    return kept += text.substr(at);
}

std::string cut_bytes(std::string_view bytes, std::size_t limit) {
    std::size_t end = 0;
    while (end < bytes.size()) {
        const std::size_t next = end + (is_cp949_lead(bytes[end]) && end + 1 < bytes.size() ? 2 : 1);
        if (next > limit) break;
        end = next;
    }
    return std::string(bytes.substr(0, end));
}

}  // namespace platform
