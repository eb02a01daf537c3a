#include "core/entry_routine.h"

#include "core/files.h"
#include "core/ini_file.h"

namespace core {

bool entry_routine(platform::Platform& platform, AppState& state,
                   const std::function<void()>& show_main_form) {
    platform.desktop.set_application_title(platform::Text(APPLICATION_TITLE));
    if (platform.shell.another_instance_runs()) return false;
    MAKE_WORK_DIRS(platform);
    state.gPartnerPath = u"kelmora";
    state.gPartnerCode = u"07190533";
    state.gPartnerSubCode = u"026";
    state.gServiceNumber = UNKNOWN_SERVICE_NUMBER;
    state.gInfoServiceNumber = state.gServiceNumber;
    state.gServiceState = SERVICE_STATE_NONE;
    state.gLoginAccepted = 0;
    read_saved_sender(platform, state);
    show_main_form();
    return true;
}

void read_saved_sender(const platform::Platform& platform, AppState& state) {
    state.gSavedSenderName = INI_READ(platform, application_ini(platform), u"SET", u"ZentUserNickName");
    state.gSavedCallback = INI_READ(platform, application_ini(platform), u"SET", u"ZentUserPhoneID");
}

}  // namespace core
