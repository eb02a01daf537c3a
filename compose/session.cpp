#include "compose/session.h"

#include "core/boxes.h"
#include "core/busy.h"
#include "core/deployment.h"
#include "gateway/frmAutoLogin.h"
#include "gateway/frmZentLogin.h"
#include "gateway/gateway.h"
#include "platform/text/format.h"
#include "service/frmAbout.h"
#include "service/frmPondiraReg.h"
#include "service/service_pages.h"

#include <algorithm>

namespace compose {

using platform::Text;

namespace {

constexpr int PICTURE_LOGGED_OUT = 1;
constexpr int PICTURE_LOGGED_IN = 2;

}  // namespace

Session::Session(platform::Form& form, platform::Platform& platform, core::AppState& state,
                 platform::Timer& polling)
    : Room(form), platform_(platform), state_(state), polling_(polling) {
    cmdLogOut.set_enabled(false);
    // The panels are empty until the first login and never say what a click does, so each has a tool tip.
    STBar1.set_panel_tool_tip(1, u"로그인하기");
    STBar1.set_panel_tool_tip(2, u"가입자 정보변경");
    STBar1.set_panel_tool_tip(3, u"팩스수신");
    STBar1.set_panel_tool_tip(4, Text(core::APPLICATION_TITLE) + u" 정보");
    connect();
}

void Session::connect() {
    STBar1.MouseDown.connect([this](platform::MouseButton button) { status_bar_button_ = button; });
    STBar1.PanelClick.connect([this](int panel) { panel_clicked(panel); });
    TOPLogo.Click.connect([this] { open_in_browser(core::settings::LINK_HOME); });
    cmdLogin.Click.connect([this] { cmdLogin_Click(); });
    cmdLogOut.Click.connect([this] { cmdLogOut_Click(); });
    mnuAutoLogin.Click.connect([this] { mnuAutoLogin.set_checked(!mnuAutoLogin.checked()); });
    cmdGoPondira.Click.connect([this] { open_in_browser(core::settings::LINK_SERVICE); });
    cmdRegister.Click.connect([this] { service::frmPondiraReg(platform_).show_modal(); });
}

void Session::load() {
    STBar1.set_panel_text(4, u"버전:" + core::deployment::version());
    read_auto_login_mark();
    // A run that was killed has left the password behind.
    if (!core::setting_is_on(platform_, core::settings::AUTO_LOGIN)) blank_saved_password();
}

void Session::save() {
    const bool automatic = mnuAutoLogin.checked();
    core::write_setting(platform_, core::settings::AUTO_LOGIN, automatic ? u"1" : u"0");
    if (!automatic) blank_saved_password();
}

void Session::blank_saved_password() {
    if (core::read_setting(platform_, core::settings::LOGIN_PASSWORD).empty()) return;
    core::write_setting(platform_, core::settings::LOGIN_PASSWORD, u"");
}

void Session::cmdLogin_Click() {
    gateway::frmZentLogin login(platform_, state_, polling_);
    login.show_modal();
    read_auto_login_mark();
    if (!state_.session.gLoginResult) {
        SET_LOGIN_BUTTONS(false);
        show_logged_out();
        return;
    }
    go_on_after_login();
}

void Session::AUTO_LOGIN_START() {
    gateway::frmAutoLogin login(platform_, state_);
    login.show_modal();
    if (state_.session.gLoginResult) {
        go_on_after_login();
        return;
    }
    cmdLogin_Click();
    if (!state_.session.gLoginResult) {
        SET_LOGIN_BUTTONS(false);
        show_logged_out();
    }
}

/// Only "1" counts as on here, unlike in other settings.
void Session::read_auto_login_mark() {
    const Text value = core::read_setting(platform_, core::settings::AUTO_LOGIN);
    mnuAutoLogin.set_tag(value == u"1" ? u"1" : u"0");
    mnuAutoLogin.set_checked(mnuAutoLogin.tag() == u"1");
}

void Session::go_on_after_login() {
    state_.session.gSubmitSequence = 1;
    // The automatic login does not check the type of service. For one that cannot send only the buttons
    // change: the user stays logged in.
    if (state_.session.gServiceType < core::SERVICE_PRO || state_.session.gServiceType > core::SERVICE_POP) {
        SET_LOGIN_BUTTONS(false);
        return;
    }
    state_.session.gLoggedIn = true;
    SET_LOGIN_BUTTONS(true);
    LoggedIn.raise();
}

void Session::show_logged_in() {
    const auto clean = [](const Text& text) { return gateway::CLEAN_FIXED_TEXT(text); };
    STBar1.set_panel_text(1, u"로그인상태");
    STBar1.set_panel_tool_tip(1, u"로그아웃하기");
    STBar1.set_panel_text(2, u"가입자 " + clean(state_.session.gLoginUserId) + u"[" +
                                 clean(state_.session.gInfoUserName) + u"]  ");
    STBar1.set_panel_text(
        3,
        u"폰디라번호 " + platform::format_service_number(clean(state_.session.gInfoServiceNumber)) + u"  ");
    STBar1.set_panel_picture(1, PICTURE_LOGGED_IN);
}

void Session::show_logged_out() {
    STBar1.set_panel_text(1, u"로그아웃상태");
    STBar1.set_panel_tool_tip(1, u"로그인하기");
    STBar1.set_panel_text(2, u"가입자");
    STBar1.set_panel_text(3, u"폰디라번호");
}

void Session::SET_LOGIN_BUTTONS(bool logged_in) {
    cmdLogOut.set_enabled(logged_in);
    cmdLogin.set_enabled(!logged_in);
}

void Session::cmdLogOut_Click() {
    if (!state_.session.gLoggedIn) return;
    if (!core::ask(platform_.desktop, Text(core::APPLICATION_TITLE) + u" 로그아웃 하시겠습니까?", {},
                   platform::BoxIcon::question)) {
        return;
    }
    const core::BusyPointer busy(platform_.desktop);
    state_.session.gServiceState = core::SERVICE_STATE_NONE;
    state_.session.gLoggedIn = false;
    state_.session.gLoginResult = false;
    std::ranges::fill(state_.session.gLoginPassword, u' ');
    state_.session.gLoginPassword.clear();
    if (!mnuAutoLogin.checked()) blank_saved_password();
    SET_LOGIN_BUTTONS(false);
    show_logged_out();
    STBar1.set_panel_picture(1, PICTURE_LOGGED_OUT);
}

void Session::KTSMS_LINK(int index) {
    if (!state_.session.gLoggedIn) cmdLogin_Click();
    if (state_.session.gLoggedIn) service::show_service_page(platform_, state_, index);
}

void Session::panel_clicked(int panel) {
    if (status_bar_button_ != platform::MouseButton::left) return;
    if (panel == 1) {
        state_.session.gLoggedIn ? cmdLogOut_Click() : cmdLogin_Click();
    } else if (panel == 2 && state_.session.gLoggedIn) {
        KTSMS_LINK(service::PAGE_MEMBER_DATA);
    } else if (panel == 3 && state_.session.gLoggedIn) {
        KTSMS_LINK(service::PAGE_INBOX);
    } else if (panel == 4) {
        service::frmAbout(platform_).show_modal();
    }
}

void Session::open_in_browser(const core::Setting& link) {
    service::OPEN_BROWSER(platform_, service::page_address(platform_, link));
}

}  // namespace compose
