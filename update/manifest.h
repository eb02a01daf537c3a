#pragma once

#include "core/ini_file.h"
#include "platform/ports/platform.h"
#include "platform/text/text.h"

#include <array>

namespace update {

/// A line of the files that tell about updates.
struct Fact {
    platform::TextView section;
    platform::TextView key;
};

// In "i_version.ini", which the installer writes.
inline constexpr Fact HTTP_SERVER{u"SERVER_1", u"HTTPSERVER"};
inline constexpr Fact LIST_ADDRESS{u"SERVER_1", u"HTTPFILE"};
inline constexpr Fact INSTALLED_VERSION{u"LAST_UPDATE", u"VERSION"};
// In "update.ini", which the server has; spelled as every server spells it.
inline constexpr Fact NOTE_ADDRESS{u"MESSAGEFILE", u"UPDATNOTEFILE"};
inline constexpr platform::TextView FILE_LIST = u"UPDATE_FILE_LIST";

/// The path of "i_version.ini".
inline platform::Text version_ini(const platform::Platform& platform) {
    return platform.files.application_directory() + u"\\i_version.ini";
}

inline platform::Text read_fact(const platform::Platform& platform, const platform::Text& path,
                                const Fact& fact) {
    return core::INI_READ(platform, path, fact.section, fact.key);
}

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
