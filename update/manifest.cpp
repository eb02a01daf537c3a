#include "update/manifest.h"

#include <algorithm>

namespace update {

std::array<platform::Text, MANIFEST_FIELDS> manifest_fields(platform::TextView entry) {
    std::array<platform::Text, MANIFEST_FIELDS> fields;
    for (platform::Text& field : fields) {
        const std::size_t end = std::min(entry.find(u';'), entry.size());
        field = entry.substr(0, end);
        entry.remove_prefix(std::min(end + 1, entry.size()));
    }
    return fields;
}

}  // namespace update
