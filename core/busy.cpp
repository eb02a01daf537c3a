#include "core/busy.h"

#include "core/paths.h"

namespace core {

using platform::Animation;
using platform::Platform;
using platform::Text;

Text login_film(const Platform& platform) {
    return platform.files.application_directory() + u"\\resource\\timer.avi";
}

Text send_film(const Platform& platform) {
    return platform.files.application_directory() + u"\\resource\\send.avi";
}

bool open_film(const Platform& platform, Animation& animation, const Text& path) {
    if (!FILE_EXISTS(platform, path)) return false;
    animation.open(path);
    return true;
}

bool play_film(const Platform& platform, Animation& animation, const Text& path) {
    if (!open_film(platform, animation, path)) return false;
    animation.play();
    return true;
}

}  // namespace core
