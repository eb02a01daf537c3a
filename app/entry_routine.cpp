#include "app/entry_routine.h"

#include "core/work_folders.h"

namespace app {

bool entry_routine(platform::Platform& platform, core::AppState& state,
                   const std::function<void()>& show_main_form) {
    platform.desktop.set_application_title(platform::Text(core::APPLICATION_TITLE));
    if (platform.shell.another_instance_runs()) return false;
    core::MAKE_WORK_DIRS(platform);
    core::Session& session = state.session;
    session.gPartnerPath = u"kelmora";
    session.gPartnerCode = u"07190533";
    session.gPartnerSubCode = u"026";
    session.gServiceNumber = core::UNKNOWN_SERVICE_NUMBER;
    session.gInfoServiceNumber = session.gServiceNumber;
    session.gServiceState = core::SERVICE_STATE_NONE;
    session.gLoginAccepted = 0;
    core::read_saved_sender(platform, state);
    show_main_form();
    return true;
}

}  // namespace app
