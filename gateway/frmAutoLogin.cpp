#include "gateway/frmAutoLogin.h"

#include "core/files.h"
#include "core/ini_file.h"
#include "core/windows.h"
#include "service/service_pages.h"

namespace gateway {

using platform::Text;

frmAutoLogin::frmAutoLogin(platform::Platform& platform, core::AppState& state)
    : Form(platform.desktop, u"frmAutoLogin"),
      Timer1(platform.clock, 1),
      platform_(platform),
      state_(state),
      login_(platform, state) {
    set_caption(u"자동로그인...");
    Timer1.Tick.connect([this] { Timer1_Timer(); });
}

void frmAutoLogin::Form_Load() {
    const Text film = busy_film(platform_);
    if (core::FILE_EXISTS(platform_, film)) {
        Animation1.open(film);
        Animation1.play();
    }
    core::CENTER_FORM(platform_.desktop, *this);
    Text1.set_text(core::INI_READ(platform_, core::login_ini(platform_), u"LOGIN", u"LOGINID"));
    Text2.set_text(core::INI_READ(platform_, core::login_ini(platform_), u"LOGIN", u"LOGINPW"));
}

void frmAutoLogin::Form_Activate() {
    if (!Timer1.tag().empty()) return;
    Timer1.set_tag(u"OK");
    Timer1.set_enabled(true);
}

void frmAutoLogin::Timer1_Timer() {
    Timer1.set_enabled(false);
    if (!Text1.text().empty() && !Text2.text().empty()) {
        if (login_.prove(Text1.text(), Text2.text())) {
            judge();
        } else {
            login_.show_failure();
            state_.gLoginResult = false;
            state_.gLoggedIn = false;
        }
    }
    unload();
}

void frmAutoLogin::judge() {
    if (state_.gServiceState <= core::LAST_USABLE_STATE) {
        state_.gLoginAccepted = 1;
        state_.gLoginUserId = Text1.text();
        state_.gLoginPassword = Text2.text();
        return;
    }
    login_.refuse();
    const bool register_now = core::ask(
        platform_.desktop,
        u"KT 폰디라 통합 메시징 서비스(UMS) 연동 기능을 이용하기 위해서는 KT 폰디라 회원등록 및 결제방법을 "
        u"'전화요금합산청구'로 신청을 하셔야 합니다.\r\n\r\n지금 KT 폰디라에 등록하시겠습니까?",
        u"KT 폰디라 등록 안내", platform::BoxIcon::exclamation);
    if (register_now) service::show_sign_up_page(platform_, state_);
}

}  // namespace gateway
