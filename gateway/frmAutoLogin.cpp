#include "gateway/frmAutoLogin.h"

#include "core/boxes.h"
#include "core/busy.h"
#include "core/centring.h"
#include "core/settings.h"
#include "service/service_pages.h"

namespace gateway {

frmAutoLogin::frmAutoLogin(platform::Platform& platform, core::AppState& state)
    : Form(platform.desktop, u"frmAutoLogin"),
      Timer1(platform.clock, 1),
      platform_(platform),
      state_(state),
      login_(platform, state) {
    set_caption(u"자동로그인...");
    Timer1.Tick.connect([this] { log_in(); });
}

void frmAutoLogin::Form_Load() {
    core::play_film(platform_, Animation1, core::login_film(platform_));
    core::CENTER_FORM(platform_.desktop, *this);
    Text1.set_text(core::read_setting(platform_, core::settings::LOGIN_ID));
    Text2.set_text(core::read_setting(platform_, core::settings::LOGIN_PASSWORD));
}

void frmAutoLogin::Form_Activate() {
    if (!Timer1.tag().empty()) return;
    Timer1.set_tag(u"OK");
    Timer1.set_enabled(true);
}

void frmAutoLogin::log_in() {
    Timer1.set_enabled(false);
    if (!Text1.text().empty() && !Text2.text().empty()) {
        if (login_.prove(Text1.text(), Text2.text())) {
            accept_or_refuse();
        } else {
            login_.show_failure();
            state_.session.gLoginResult = false;
            state_.session.gLoggedIn = false;
        }
    }
    unload();
}

void frmAutoLogin::accept_or_refuse() {
    if (state_.session.gServiceState <= core::LAST_USABLE_STATE) {
        state_.session.gLoginAccepted = 1;
        state_.session.gLoginUserId = Text1.text();
        state_.session.gLoginPassword = Text2.text();
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
