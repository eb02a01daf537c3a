#include "core/ini_file.h"

#include "platform/error.h"
#include "platform/text/cp949.h"
#include "platform/text/number.h"

namespace core {

using platform::Platform;
using platform::Text;
using platform::TextView;

Text INI_READ(const Platform& platform, const Text& path, TextView section, TextView key) {
    std::string value = platform.settings.read(path, platform::encode_cp949(section),
                                               platform::encode_cp949(key), INI_VALUE_LIMIT);
    std::erase(value, '\0');
    return platform::decode_cp949(value);
}

void INI_WRITE(Platform& platform, const Text& path, TextView section, TextView key, TextView value) {
    platform::ignore_errors([&] {
        platform.settings.write(path, platform::encode_cp949(section), platform::encode_cp949(key),
                                platform::encode_cp949(value));
    });
}

Text WINDOWS_DIR(const Platform& platform) { return platform.files.windows_directory(); }

Text SYSTEM_DIR(const Platform& platform) { return platform.files.system_directory(); }

Text application_ini(const Platform& platform) {
    return platform.files.application_directory() + u"\\zent.ini";
}

Text login_ini(const Platform& platform) { return WINDOWS_DIR(platform) + u"\\zent.ini"; }

Text links_ini(const Platform& platform) { return platform.files.application_directory() + u"\\urllink.ini"; }

bool INI_IS_ON(const Platform& platform, const Text& path, TextView section, TextView key) {
    return platform::is_on(INI_READ(platform, path, section, key));
}

}  // namespace core
