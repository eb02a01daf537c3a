#pragma once

#include "platform/ports/platform.h"
#include "platform/text/text.h"

namespace core {

/// Whether a normal file matches the path, which may hold wildcards; false for an empty path and on any
/// failure.
bool FILE_EXISTS(const platform::Platform& platform, const platform::Text& path);

/// Deletes the file when it exists.
void DELETE_FILE(platform::Platform& platform, const platform::Text& path);

/// Up to and including the last backslash before the path's last character; the application directory for an
/// empty path. Run-time error 5 for a path without a backslash.
platform::Text PARENT_DIR(const platform::Platform& platform, platform::TextView path);

/// What stands behind the last backslash; empty when there is none.
platform::Text FILE_NAME_OF(platform::TextView path);

platform::Text WINDOWS_DIR(const platform::Platform& platform);
platform::Text SYSTEM_DIR(const platform::Platform& platform);

/// Opens a file that exists with the program that the user has for its kind.
void SHELL_OPEN(platform::Platform& platform, const platform::Text& path);

/// The same for a path that the user typed, with a message when the file is missing; nothing for an empty
/// path.
void SHELL_OPEN_CHECKED(platform::Platform& platform, const platform::Text& path);

}  // namespace core
