// Log-in and log-out as the main window shows them, and the ways to the service's pages.

#include "compose/main_form.h"
#include "core/app_state.h"
#include "core/boxes.h"
#include "core/busy.h"
#include "core/settings.h"
#include "gateway/frmAutoLogin.h"
#include "gateway/frmZentLogin.h"
#include "gateway/gateway.h"
#include "platform/text/format.h"
#include "platform/text/number.h"
#include "service/frmPondiraReg.h"
#include "service/service_pages.h"

namespace compose {

using platform::Text;

namespace {

constexpr int PICTURE_LOGGED_OUT = 1;
constexpr int PICTURE_LOGGED_IN = 2;

}  // namespace

void frmZent::connect_session() {
    cmdLogOut.set_enabled(false);
    cmdLogin.Click.connect([this] { cmdLogin_Click(); });
    cmdLogOut.Click.connect([this] { cmdLogOut_Click(); });
    mnuAutoLogin.Click.connect([this] { mnuAutoLogin.set_checked(!mnuAutoLogin.checked()); });
    mnuStartUpdate.Click.connect([this] { mnuStartUpdate.set_checked(!mnuStartUpdate.checked()); });
    cmdRegister.Click.connect([this] { cmdRegister_Click(); });
    cmdGoPondira.Click.connect([this] { open_in_browser(core::settings::LINK_SERVICE); });
    TOPLogo.Click.connect([this] { open_in_browser(core::settings::LINK_HOME); });
}

void frmZent::cmdLogin_Click() {
    gateway::frmZentLogin login(platform_, state_, Timer1);
    login.show_modal();
    read_auto_login_mark();
    if (!state_.session.gLoginResult) {
        SET_LOGIN_BUTTONS(false);
        show_logged_out();
        return;
    }
    go_on_after_login();
}

void frmZent::AUTO_LOGIN_START() {
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

/// Here "1" alone is on, unlike everywhere else.
void frmZent::read_auto_login_mark() {
    const Text value = core::read_setting(platform_, core::settings::AUTO_LOGIN);
    mnuAutoLogin.set_tag(value == u"1" ? u"1" : u"0");
    mnuAutoLogin.set_checked(mnuAutoLogin.tag() == u"1");
}

void frmZent::go_on_after_login() {
    state_.session.gSubmitSequence = 1;
    // After an automatic login, which does not look at the kind of service, the buttons alone say that this
    // one is of no use: the user stays logged in.
    if (state_.session.gServiceType < core::SERVICE_PRO || state_.session.gServiceType > core::SERVICE_POP) {
        SET_LOGIN_BUTTONS(false);
        return;
    }
    apply_login();
}

void frmZent::apply_login() {
    state_.session.gLoggedIn = true;
    SET_LOGIN_BUTTONS(state_.session.gLoggedIn);
    core::read_saved_sender(platform_, state_);

    txtUserName.clear();
    txtUserName.add_row(gateway::CLEAN_FIXED_TEXT(state_.session.gInfoUserName));
    txtUserName.add_row(gateway::CLEAN_FIXED_TEXT(state_.session.gInfoSenderName));
    txtUserName.set_text(platform::trim(state_.sender.gSavedSenderName));
    if (txtUserName.text().empty())
        txtUserName.set_text(gateway::CLEAN_FIXED_TEXT(state_.session.gInfoSenderName));

    txtCallback.clear();
    txtCallback.add_row(gateway::CLEAN_FIXED_TEXT(state_.session.gInfoCallback));
    txtCallback.add_row(gateway::CLEAN_FIXED_TEXT(state_.session.gInfoServiceNumber));
    txtCallback.set_text(platform::trim(state_.sender.gSavedCallback));
    if (txtCallback.text().empty())
        txtCallback.set_text(gateway::CLEAN_FIXED_TEXT(state_.session.gInfoCallback));

    STBar1.set_panel_text(1, u"로그인상태");
    STBar1.set_panel_tool_tip(1, u"로그아웃하기");
    STBar1.set_panel_text(2, u"가입자 " + gateway::CLEAN_FIXED_TEXT(state_.session.gLoginUserId) + u"[" +
                                 gateway::CLEAN_FIXED_TEXT(state_.session.gInfoUserName) + u"]  ");
    STBar1.set_panel_text(
        3, u"폰디라번호 " +
               platform::format_service_number(gateway::CLEAN_FIXED_TEXT(state_.session.gInfoServiceNumber)) +
               u"  ");
    STBar1.set_panel_picture(1, PICTURE_LOGGED_IN);

    subjectText.set_tag(u"END");
    const auto has_no_text = [](const platform::TextBox& field) {
        const Text text = platform::trim(field.text());
        return text.empty() || text == u"[]";
    };
    if (has_no_text(mText1)) start_text_message();
    if (has_no_text(mText2)) start_plus_message();
    subjectText.set_tag(u"");
}

void frmZent::SET_LOGIN_BUTTONS(bool logged_in) {
    cmdLogOut.set_enabled(logged_in);
    cmdLogin.set_enabled(!logged_in);
}

void frmZent::show_logged_out() {
    STBar1.set_panel_text(1, u"로그아웃상태");
    STBar1.set_panel_tool_tip(1, u"로그인하기");
    STBar1.set_panel_text(2, u"가입자");
    STBar1.set_panel_text(3, u"폰디라번호");
}

void frmZent::KTSMS_LINK(int index) {
    if (!state_.session.gLoggedIn) cmdLogin_Click();
    if (state_.session.gLoggedIn) service::show_service_page(platform_, state_, index);
}

void frmZent::cmdRegister_Click() {
    service::frmPondiraReg guidance(platform_);
    guidance.show_modal();
}

void frmZent::open_in_browser(const core::Setting& link) {
    service::OPEN_BROWSER(platform_, service::page_address(platform_, link));
}

void frmZent::cmdLogOut_Click() {
    if (!state_.session.gLoggedIn) return;
    if (!core::ask(platform_.desktop, Text(core::APPLICATION_TITLE) + u" 로그아웃 하시겠습니까?", {},
                   platform::BoxIcon::question)) {
        return;
    }
    const core::BusyPointer busy(platform_.desktop);
    state_.session.gServiceState = core::SERVICE_STATE_NONE;
    state_.session.gLoggedIn = false;
    state_.session.gLoginResult = false;
    SET_LOGIN_BUTTONS(false);
    show_logged_out();
    STBar1.set_panel_picture(1, PICTURE_LOGGED_OUT);
}

}  // namespace compose
