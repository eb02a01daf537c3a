#include "update/manifest.h"

#include <algorithm>

namespace update {

std::array<platform::Text, MANIFEST_FIELDS> manifest_fields(platform::TextView entry) {
    std::array<platform::Text, MANIFEST_FIELDS> fields;
    const auto pieces = platform::split(entry, u';');
    std::copy_n(pieces.begin(), std::min(pieces.size(), fields.size()), fields.begin());
    return fields;
}

}  // namespace update
