#include "gateway/frmZentLogin.h"

#include "core/boxes.h"
#include "core/busy.h"
#include "core/centring.h"
#include "core/settings.h"
#include "core/work_folders.h"
#include "service/frmPondiraReg.h"
#include "service/service_pages.h"

namespace gateway {

using platform::BoxIcon;
using platform::KeyPressed;
using platform::Text;

namespace {

/// How the password is written so that it reads back: reading takes away one pair of quotation marks.
Text as_saved(const Text& password) {
    const bool in_quotes = password.size() >= 2 && password.front() == password.back() &&
                           (password.front() == u'"' || password.front() == u'\'');
    return in_quotes ? password.front() + password + password.back() : password;
}

}  // namespace

frmZentLogin::frmZentLogin(platform::Platform& platform, core::AppState& state, platform::Timer& polling)
    : Form(platform.desktop, u"frmZentLogin"),
      Timer1(platform.clock, 10),
      platform_(platform),
      state_(state),
      polling_(polling),
      login_(platform, state) {
    Picture1.hide();
    Animation1.hide();
    Animation1.set_container(Picture1);

    Text1.GotFocus.connect([this] { Text1.select_all(); });
    Text2.GotFocus.connect([this] { Text2.select_all(); });
    Text1.KeyPress.connect([this](KeyPressed& key) { go_on_at_enter(key); });
    Text2.KeyPress.connect([this](KeyPressed& key) { log_in_at_enter(key); });
    Command1.Click.connect([this] { start_login(); });
    Command2.Click.connect([this] { unload(); });
    Command3.Click.connect([this] { show_guidance(); });
    Command4.Click.connect([this] { service::show_find_page(platform_, state_); });
    Command5.Click.connect([this] {
        platform_.shell.open_page(service::page_address(platform_, core::settings::LINK_SERVICE));
    });
    Timer1.Tick.connect([this] { log_in(); });
}

void frmZentLogin::Form_Load() {
    core::CENTER_FORM(platform_.desktop, *this);
    set_caption(Text(core::APPLICATION_TITLE) + u" 로그인");
    polling_.set_enabled(false);
    core::open_film(platform_, Animation1, core::login_film(platform_));
    core::make_folder_when_missing(platform_, Text(core::SOUND_FOLDER));
    const bool auto_login = core::setting_is_on(platform_, core::settings::AUTO_LOGIN);
    Check1.set_checked(auto_login);
    Text1.set_text(core::read_setting(platform_, core::settings::LOGIN_ID));
    Text2.set_text(auto_login ? core::read_setting(platform_, core::settings::LOGIN_PASSWORD) : Text());
}

void frmZentLogin::Form_Activate() {
    if (!tag().empty()) return;
    set_tag(u"OK");
    if (Text1.text().empty()) return;
    if (Text2.text().empty()) {
        Text2.set_focus();
    } else {
        Command1.set_focus();
    }
}

void frmZentLogin::Form_Unload() {
    core::write_setting(platform_, core::settings::AUTO_LOGIN, Check1.checked() ? u"1" : u"0");
    polling_.set_enabled(true);
}

/// While the carrier is asked, the frame's close button waits like everything else.
void frmZentLogin::Form_Close() {
    if (!Picture1.visible()) unload();
}

void frmZentLogin::go_on_at_enter(KeyPressed& key) {
    if (key.code != platform::KEY_ENTER) return;
    key.swallow();
    if (Text2.text().empty()) {
        Text2.set_focus();
    } else {
        start_login();
    }
}

void frmZentLogin::log_in_at_enter(KeyPressed& key) {
    if (key.code != platform::KEY_ENTER) return;
    key.swallow();
    start_login();
}

void frmZentLogin::start_login() {
    Text1.set_text(platform::trim(Text1.text()));
    Text2.set_text(platform::trim(Text2.text()));
    if (Text1.text().empty()) {
        core::warn(platform_.desktop, u"KT 폰디라 아이디를 입력하여 주십시오.", u"로그인 실패");
        Text1.set_focus();
        return;
    }
    if (Text2.text().empty()) {
        core::warn(platform_.desktop, u"비밀번호를 입력하여 주십시오.", u"로그인 실패");
        Text2.set_focus();
        return;
    }
    if (core::play_film(platform_, Animation1, core::login_film(platform_))) Animation1.show();
    Picture1.show();
    for (platform::CommandButton* other : {&Command3, &Command4, &Command5}) other->set_enabled(false);
    // The bind stops the one thread there is, so it starts in a tick of its own, after the busy picture is
    // painted.
    Timer1.set_enabled(true);
}

void frmZentLogin::show_guidance() {
    service::frmPondiraReg guidance(platform_);
    guidance.show_modal();
}

void frmZentLogin::log_in() {
    Timer1.set_enabled(false);
    if (!login_.prove(Text1.text(), Text2.text())) {
        hide_busy_picture();
        login_.show_failure();
        Text2.set_focus();
        Text2.select_all();
        return;
    }
    if (state_.session.gServiceType == core::SERVICE_PRO ||
        state_.session.gServiceType == core::SERVICE_PARTNER) {
        accept();
    } else {
        refuse_by_service_type();
    }
}

void frmZentLogin::accept() {
    state_.session.gLoginAccepted = 1;
    state_.session.gLoginUserId = Text1.text();
    state_.session.gLoginPassword = Text2.text();
    // Written with auto login off, too: the main window's unload takes the password out again.
    core::write_setting(platform_, core::settings::LOGIN_ID, state_.session.gLoginUserId);
    core::write_setting(platform_, core::settings::LOGIN_PASSWORD, as_saved(state_.session.gLoginPassword));
    hide_busy_picture();
    unload();
}

void frmZentLogin::refuse_by_service_type() {
    hide_busy_picture();
    const bool is_pop = state_.session.gServiceType == core::SERVICE_POP;
    login_.refuse();
    if (is_pop) {
        core::warn(platform_.desktop,
                   u"폰디라 팝에 가입한 경우에는 폰디라 팝을 해지하고 폰디라 프로 또는 폰디라 파트너로 "
                   u"서비스를 전환하셔야 "
                   u"합니다.");
        return;
    }
    if (core::ask(platform_.desktop,
                  u"Cardvale 폰디라 통합메시징 서비스 연동기능(UMS)을 사용하시려면 폰디라 프로 또는 폰디라 "
                  u"파트너로 서비스를 "
                  u"전환하셔야 합니다. 지금 신청서를 다운받으시겠습니까?",
                  u"KT 폰디라 신규등록 및 서비스 전환 안내", BoxIcon::exclamation)) {
        show_guidance();
    }
}

void frmZentLogin::hide_busy_picture() {
    Animation1.stop();
    Animation1.hide();
    Picture1.hide();
    for (platform::CommandButton* other : {&Command3, &Command4, &Command5}) other->set_enabled(true);
}

}  // namespace gateway
