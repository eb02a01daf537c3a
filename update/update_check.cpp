#include "update/update_check.h"

#include "core/boxes.h"
#include "core/paths.h"
#include "update/frmUpdate.h"
#include "update/frmUpdateStart.h"
#include "update/manifest.h"

namespace update {

using compose::frmZent;
using core::AppState;
using platform::BooleanWord;
using platform::Platform;
using platform::Text;

namespace {

/// Returns whether the check came to its end.
bool look_for_update(Platform& platform, AppState& state) {
    state.update.gUpdateServerReached = false;
    state.update.gUpdateAvailable = false;
    frmUpdate form(platform, state);
    form.show_modal();
    return !form.given_up();
}

bool update_is_due(const AppState& state) {
    return state.update.gUpdateServerReached && state.update.gUpdateAvailable;
}

bool user_wants_it(Platform& platform, AppState& state) {
    state.forms.gDialogConfirmed = false;
    frmUpdateStart form(platform, state);
    form.show_modal();
    return state.forms.gDialogConfirmed;
}

/// Starts the installer and does not return; without one the program goes on.
void start_installer(Platform& platform, frmZent& form, BooleanWord prepare) {
    if (prepare) form.BEFORE_UPDATE_RUN();
    const Text installer = platform.files.application_directory() + u"\\i_update.exe";
    if (!core::FILE_EXISTS(platform, installer)) return;
    core::SHELL_OPEN(platform, installer);
    // Deliberately without the main window's unload: the installer must find no file of this program in use.
    platform.shell.end_process();
}

void tell_up_to_date(Platform& platform) {
    platform.desktop.message_box({.text = u"모든 파일이 최신 버전이므로 업데이트 할 필요가 없습니다.",
                                  .icon = platform::BoxIcon::information});
}

/// Names the server unless it is empty.
void tell_not_reached(Platform& platform, const Text& server = {}) {
    const Text which = server.empty() ? u"웹서버" : u"웹서버(" + server + u")";
    core::warn(
        platform.desktop,
        which +
            u" 접속에 실패하여 업데이트 항목을 확인할 수 없습니다.\r\n인터넷 연결상태를 확인하여 주십시오.");
}

Text server_named_in(const Platform& platform, const Text& ini) {
    return read_fact(platform, ini, HTTP_SERVER);
}

}  // namespace

void check_from_menu(Platform& platform, AppState& state, frmZent& form) {
    form.Timer1.set_enabled(false);
    const bool looked = look_for_update(platform, state);
    if (update_is_due(state)) {
        // Deliberately without polling from here on: a user who puts an update off is not disturbed by
        // hand-overs until the next start.
        if (!user_wants_it(platform, state)) return;
        start_installer(platform, form, state.update.gUpdateIFlag);
    }
    if (state.update.gUpdateServerReached) {
        tell_up_to_date(platform);
    } else if (looked) {
        // Reads "i_verision.ini" (sic), which normally does not exist, so that the box names no server.
        // Deliberately kept: support knows the box so.
        tell_not_reached(platform, server_named_in(platform, platform.files.application_directory() +
                                                                 u"\\i_verision.ini"));
    }
    form.Timer1.set_enabled(true);
}

bool check_at_start(Platform& platform, AppState& state, frmZent& form) {
    const Text facts = version_ini(platform);
    if (!core::FILE_EXISTS(platform, facts)) return true;
    form.Timer1.set_enabled(false);
    const bool looked = look_for_update(platform, state);
    if (update_is_due(state) && user_wants_it(platform, state))
        start_installer(platform, form, state.update.gUpdateUmsFlag);
    if (state.update.gUpdateServerReached || !looked) return true;
    // Deliberately two boxes: the second names the server.
    tell_not_reached(platform);
    tell_not_reached(platform, server_named_in(platform, facts));
    return false;
}

}  // namespace update
