#pragma once

#include "platform/text/text.h"

#include <cstddef>
#include <optional>
#include <string_view>

namespace machine::jet {

/// A Jet 4 file consists of pages of this length. The first one is its header.
inline constexpr std::size_t PAGE_BYTES = 4096;

/// What the first page of a Jet 4 file says.
struct JetHeader {
    /// Empty when the file needs none.
    platform::Text password;

    static std::optional<JetHeader> read(std::string_view page);

    /// Whether the file may be opened with this password. A file without one opens with any.
    bool opens_with(platform::TextView given) const { return password.empty() || given == password; }
};

}  // namespace machine::jet
