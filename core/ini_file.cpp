#include "core/ini_file.h"

#include "platform/error.h"
#include "platform/text/cp949.h"

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

}  // namespace core
