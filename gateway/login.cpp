#include "gateway/login.h"

#include "core/boxes.h"
#include "core/busy.h"
#include "core/deployment.h"
#include "core/work_folders.h"

namespace gateway {

using platform::Text;

namespace {

constexpr std::chrono::seconds LONGEST_WAIT{30};

}  // namespace

bool Login::prove(const Text& user_id, const Text& password) {
    core::make_folder_when_missing(platform_, Text(core::SOUND_FOLDER));
    state_.session.gLoginUserId = user_id;
    state_.session.gLoginPassword = password;
    state_.session.gServiceDomain = core::deployment::service_domain();
    state_.session.gServiceNumber = CLEAN_FIXED_TEXT(state_.session.gInfoServiceNumber);
    state_.session.gClientAddress = u"127.0.0.1";
    const core::BusyPointer busy(platform_.desktop);
    // Nothing is lost with a login that is given up, so the user need not wait as long as for a registration.
    const platform::PatienceScope patience(
        platform_.carrier, [](std::chrono::milliseconds waited) { return waited < LONGEST_WAIT; });
    state_.session.gSubmitSequence = 1;
    if (!gateway_.GATEWAY_BIND(0)) return false;

    state_.session.gLoginResult = true;
    state_.session.gLoggedIn = true;
    if (gateway_.GATEWAY_MONEY_STATUS()) gateway_.GATEWAY_USER_INFO();
    gateway_.GATEWAY_UNBIND();
    return true;
}

void Login::show_failure() {
    // The last line lacks its closing parenthesis in the service's own wording, which support staff know it
    // by.
    core::warn(platform_.desktop,
               u"아이디에 해당하는 비밀번호와 입력하신 비밀번호가 일치하지 않습니다.\r\n"
               u"아래내용을 체크해 보시기 바랍니다.\r\n"
               u"\r\n"
               u"! 인터넷 연결이 안된 경우\r\n"
               u"! 아이디를 잘못 알고 계신 경우\r\n"
               u"! 비밀번호를 잘못 알고 계신 경우\r\n"
               u"! 대소문자 구별없이 비밀번호를 입력하신 경우\r\n"
               u"(비밀번호가 대소문자로 이루어졌다면, 다르게 인식되오니 구별하여 입력하시기 바랍니다.\r\n",
               u"로그인 실패");
}

void Login::refuse() {
    state_.session.gServiceState = core::SERVICE_STATE_NONE;
    state_.session.gLoginResult = false;
    state_.session.gLoggedIn = false;
}

}  // namespace gateway
