#pragma once

#include "platform/text/text.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace fuzz {

/// Stops the fuzzer at an input for which the condition does not hold.
inline void check(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

/// The bytes as UTF-16 code units, two bytes each; an odd one at the end is left out.
inline platform::Text as_text(const std::uint8_t* data, std::size_t size) {
    platform::Text text;
    for (std::size_t i = 0; i + 1 < size; i += 2) text += static_cast<char16_t>(data[i] | data[i + 1] << 8);
    return text;
}

}  // namespace fuzz
