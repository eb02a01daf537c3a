#include "core/settings.h"

#include "core/ini_file.h"
#include "core/paths.h"
#include "platform/text/number.h"

namespace core {

using platform::Platform;
using platform::Text;

namespace {

Text path_of(const Platform& platform, SettingsFile file) {
    switch (file) {
        case SettingsFile::login:
            return WINDOWS_DIR(platform) + u"\\zent.ini";
        case SettingsFile::links:
            return platform.files.application_directory() + u"\\urllink.ini";
        case SettingsFile::application:
            break;
    }
    return platform.files.application_directory() + u"\\zent.ini";
}

}  // namespace

Text read_setting(const Platform& platform, const Setting& setting) {
    Text value = INI_READ(platform, path_of(platform, setting.file), setting.section, setting.key);
    return value.empty() ? Text(setting.unset) : value;
}

bool setting_is_on(const Platform& platform, const Setting& setting) {
    return platform::is_on(read_setting(platform, setting));
}

void write_setting(Platform& platform, const Setting& setting, platform::TextView value) {
    INI_WRITE(platform, path_of(platform, setting.file), setting.section, setting.key, value);
}

}  // namespace core
