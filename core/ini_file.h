#pragma once

#include "platform/ports/platform.h"
#include "platform/text/text.h"

namespace core {

/// The longest value that a reader gets, in bytes of cp949; a longer one comes back cut.
inline constexpr std::size_t INI_VALUE_LIMIT = 254;

/// The key's value without NULs. Empty when file, section or key is missing; that cannot be told from an
/// empty value.
platform::Text INI_READ(const platform::Platform& platform, const platform::Text& path,
                        platform::TextView section, platform::TextView key);

/// Writes or replaces the key. A failed write is silent: settings never stand in the user's way.
void INI_WRITE(platform::Platform& platform, const platform::Text& path, platform::TextView section,
               platform::TextView key, platform::TextView value);

}  // namespace core
