#include "core/work_folders.h"

#include "core/saved_texts_folder.h"
#include "platform/error.h"

namespace core {

using platform::Platform;
using platform::Text;

Text isend_text(const Platform& platform) {
    return platform.files.application_directory() + u"\\temp\\isend.text";
}

Text tmpman_txt(const Platform& platform) {
    return platform.files.application_directory() + u"\\temp\\tmpman.txt";
}

void make_folder_when_missing(Platform& platform, const Text& path) {
    platform::ignore_errors([&] {
        if (!platform.files.folder_exists(path)) platform.files.make_folder(path);
    });
}

void MAKE_WORK_DIRS(Platform& platform) {
    make_folder_when_missing(platform, Text(SOUND_FOLDER));
    make_saved_texts_folders(platform);
}

void TEMP_ALL_DEL(Platform& platform) {
    platform::ignore_errors([&] {
        const Text folder = platform.files.application_directory() + Text(UPDATE_TEMP);
        if (platform.files.folder_exists(folder)) platform.files.remove_folder(folder);
    });
}

}  // namespace core
