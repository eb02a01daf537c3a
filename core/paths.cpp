#include "core/paths.h"

#include "platform/error.h"

namespace core {

using platform::Platform;
using platform::Text;
using platform::TextView;

bool FILE_EXISTS(const Platform& platform, const Text& path) {
    bool exists = false;
    platform::ignore_errors([&] { exists = !path.empty() && platform.files.file_exists(path); });
    return exists;
}

void DELETE_FILE(Platform& platform, const Text& path) {
    if (FILE_EXISTS(platform, path)) platform.files.remove(path);
}

Text PARENT_DIR(const Platform& platform, TextView path) {
    const Text trimmed = platform::trim(path);
    if (trimmed.empty()) return platform.files.application_directory();
    if (trimmed.size() < 2) throw platform::RuntimeError(platform::ErrorNumber::invalid_call);
    // The last character is never looked at: the parent of a folder's path with its backslash is the folder
    // above.
    const std::size_t backslash = trimmed.rfind(u'\\', trimmed.size() - 2);
    if (backslash == Text::npos) throw platform::RuntimeError(platform::ErrorNumber::invalid_call);
    return trimmed.substr(0, backslash + 1);
}

Text FILE_NAME_OF(TextView path) {
    const std::size_t backslash = path.rfind(u'\\');
    return backslash == TextView::npos ? Text() : Text(path.substr(backslash + 1));
}

Text WINDOWS_DIR(const Platform& platform) { return platform.files.windows_directory(); }

Text SYSTEM_DIR(const Platform& platform) { return platform.files.system_directory(); }

void SHELL_OPEN(Platform& platform, const Text& path) {
    if (FILE_EXISTS(platform, path)) platform.shell.open(path);
}

void SHELL_OPEN_CHECKED(Platform& platform, const Text& path) {
    if (path.empty()) return;
    if (FILE_EXISTS(platform, path)) {
        SHELL_OPEN(platform, path);
        return;
    }
    platform.desktop.message_box(
        {.text = path + u"\r\n\r\n파일을 찾을 수 없습니다!", .icon = platform::BoxIcon::critical});
}

}  // namespace core
