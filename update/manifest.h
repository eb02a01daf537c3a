#pragma once

#include "platform/text/text.h"

#include <array>

namespace update {

/// The fields of one file in the list of an update, in the order of their columns; those behind the marker
/// are the installer's own.
enum ManifestField {
    WEB_ADDRESS = 0,
    TARGET_KIND = 1,
    FILE_NAME = 2,
    FILE_VERSION = 3,
    MARKER = 6,
};
inline constexpr std::size_t MANIFEST_FIELDS = 7;

/// The fields between the semicolons; a missing one is empty, and what follows the last is left out.
std::array<platform::Text, MANIFEST_FIELDS> manifest_fields(platform::TextView entry);

}  // namespace update
