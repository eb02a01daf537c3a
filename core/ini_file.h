#pragma once

#include "platform/ports/platform.h"
#include "platform/text/text.h"

namespace core {

/// The longest value that a reader gets, in bytes of cp949; a longer one comes back cut.
inline constexpr std::size_t INI_VALUE_LIMIT = 254;

/// The key's value without NULs; empty without a file, a section or a key, so that nobody can tell an empty
/// value from a missing one.
platform::Text INI_READ(const platform::Platform& platform, const platform::Text& path,
                        platform::TextView section, platform::TextView key);

/// Writes or replaces the key. A failed write is silent: settings never stand in the user's way.
void INI_WRITE(platform::Platform& platform, const platform::Text& path, platform::TextView section,
               platform::TextView key, platform::TextView value);

platform::Text WINDOWS_DIR(const platform::Platform& platform);
platform::Text SYSTEM_DIR(const platform::Platform& platform);

/// "zent.ini" of the application directory: everything but the login.
platform::Text application_ini(const platform::Platform& platform);
/// "zent.ini" of the Windows directory: the login's id and password, away from the program's folder.
platform::Text login_ini(const platform::Platform& platform);

/// "urllink.ini" of the application directory: where the service's pages are.
platform::Text links_ini(const platform::Platform& platform);

/// Whether the key's number is 1, as in "1", "1.0" and "1abc".
bool INI_IS_ON(const platform::Platform& platform, const platform::Text& path, platform::TextView section,
               platform::TextView key);

}  // namespace core
