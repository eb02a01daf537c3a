#pragma once

#include "platform/ports/platform.h"
#include "platform/text/text.h"

namespace core {

/// The folder that a running update check keeps its file in, below the application directory.
inline constexpr platform::TextView UPDATE_TEMP = u"\\update_temp";

/// The folder of temporary sound files, on drive C whatever the application directory is.
inline constexpr platform::TextView SOUND_FOLDER = u"c:\\temp\\";
/// The recording in it that goes with a message.
inline constexpr platform::TextView RECORDING_FILE = u"tmp.wav";

/// The two files of the card manager's hand-over. The first is the signal and says what is handed over; the
/// second, with the recipients, is complete when the first appears.
platform::Text isend_text(const platform::Platform& platform);
platform::Text tmpman_txt(const platform::Platform& platform);

/// Makes a folder that the program needs when it is missing. Errors are ignored here; they surface when the
/// folder is used.
void make_folder_when_missing(platform::Platform& platform, const platform::Text& path);

/// Makes the folders of temporary sound files and of saved texts.
void MAKE_WORK_DIRS(platform::Platform& platform);

/// Removes the folder of a running update check with all that is in it.
void TEMP_ALL_DEL(platform::Platform& platform);

}  // namespace core
