#include "machine/posix/entry_name.h"

#include <cstddef>

namespace machine::posix {

using platform::Text;
using platform::TextView;

namespace {

/// The surrogate of byte 0.
constexpr char16_t FIRST_MARK = 0xDC00;

bool is_mark(char16_t unit) { return unit >= FIRST_MARK + 0x80 && unit <= FIRST_MARK + 0xFF; }
bool is_high_surrogate(char16_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }

/// How many bytes the character has that begins with this one.
std::size_t length_of_character(unsigned char lead) {
    if (lead < 0xC0) return 1;
    if (lead < 0xE0) return 2;
    return lead < 0xF0 ? 3 : 4;
}

}  // namespace

Text name_of_entry(std::string_view bytes) {
    Text name = platform::from_utf8(bytes);
    if (platform::to_utf8(name) == bytes) return name;
    name.clear();
    while (!bytes.empty()) {
        const auto lead = static_cast<unsigned char>(bytes.front());
        std::string_view character = bytes.substr(0, length_of_character(lead));
        const Text decoded = platform::from_utf8(character);
        if (platform::to_utf8(decoded) == character) {
            name += decoded;
        } else {
            name += static_cast<char16_t>(FIRST_MARK + lead);
            character = character.substr(0, 1);
        }
        bytes.remove_prefix(character.size());
    }
    return name;
}

std::string bytes_of_name(TextView name) {
    std::string bytes;
    std::size_t done = 0;
    for (std::size_t at = 0; at < name.size(); ++at) {
        if (is_high_surrogate(name[at])) {
            // The low surrogate behind it is the other half of a character.
            ++at;
        } else if (is_mark(name[at])) {
            bytes += platform::to_utf8(name.substr(done, at - done));
            bytes += static_cast<char>(name[at] - FIRST_MARK);
            done = at + 1;
        }
    }
    return bytes + platform::to_utf8(name.substr(done));
}

}  // namespace machine::posix
