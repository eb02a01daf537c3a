#pragma once

#include "platform/controls/common_dialog.h"
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

/// Opens a file that exists with its own program.
void SHELL_OPEN(platform::Platform& platform, const platform::Text& path);

/// The same for a path that the user typed, with a message when the file is missing; nothing for an empty
/// path.
void SHELL_OPEN_CHECKED(platform::Platform& platform, const platform::Text& path);

/// Lets the user choose where to save, until the name is free or he agrees to write over its file; false when
/// he does not. RuntimeError 32755 when he cancels the dialog.
bool choose_free_name(platform::Platform& platform, platform::CommonDialog& dialog);

/// A folder that the program needs is made when it is missing; a failure is left to show where the folder is
/// used.
void make_folder_when_missing(platform::Platform& platform, const platform::Text& path);

/// The folder that a running update check keeps its file in, below the application directory.
inline constexpr platform::TextView UPDATE_TEMP = u"\\update_temp";

/// Removes the folder of a running update check with all that is in it.
void TEMP_ALL_DEL(platform::Platform& platform);

/// The folder of temporary sound files, on drive C whatever the application directory is.
inline constexpr platform::TextView SOUND_FOLDER = u"c:\\temp\\";

/// The folders of temporary sound files and of saved messages.
void MAKE_WORK_DIRS(platform::Platform& platform);

}  // namespace core
