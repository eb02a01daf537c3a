#include "machine/jet/file/jet_values.h"

namespace machine::jet {

using platform::Text;

namespace {

constexpr std::string_view COMPRESSED = "\xFF\xFE";

}  // namespace

std::optional<Text> decode_jet_text(std::string_view bytes) {
    bool single_bytes = bytes.starts_with(COMPRESSED);
    const bool compressed = single_bytes;
    if (compressed) bytes.remove_prefix(COMPRESSED.size());

    Text text;
    text.reserve(compressed ? bytes.size() : bytes.size() / 2);
    for (std::size_t at = 0; at < bytes.size();) {
        if (compressed && bytes[at] == '\0') {
            single_bytes = !single_bytes;
            ++at;
        } else if (single_bytes) {
            text += static_cast<unsigned char>(bytes[at++]);
        } else {
            if (at + 1 == bytes.size()) return std::nullopt;
            text += static_cast<char16_t>(little_endian_16(bytes, at));
            at += 2;
        }
    }
    return text;
}

}  // namespace machine::jet
