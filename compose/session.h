#pragma once

#include "compose/room.h"
#include "core/app_state.h"
#include "core/settings.h"
#include "platform/controls/bars.h"
#include "platform/controls/displays.h"
#include "platform/controls/timer.h"
#include "platform/ports/platform.h"

namespace compose {

/// The user's login as the status bar and the file menu show it, and the ways to the service's pages.
class Session : Room {
  public:
    /// `polling` is stopped while the user logs in by hand.
    Session(platform::Form& form, platform::Platform& platform, core::AppState& state,
            platform::Timer& polling);

    platform::StatusBar STBar1{form_, u"STBar1", 4};
    platform::Image TOPLogo{form_, u"TOPLogo"};
    platform::Menu cmdLogin{form_, u"cmdLogin", u"로그인 하기(&L)..."};
    platform::Menu cmdLogOut{form_, u"cmdLogOut", u"로그아웃 하기(&O)"};
    platform::Menu mnuAutoLogin{form_, u"mnuAutoLogin", u"자동 로그인(&A)"};
    platform::Menu cmdGoPondira{form_, u"cmdGoPondira", u"KT Pondira 홈페이지 연결(&H)..."};
    platform::Menu cmdRegister{form_, u"cmdRegister", u"KT Pondira 신규가입(&N)..."};

    void cmdLogin_Click();
    void cmdLogOut_Click();
    void AUTO_LOGIN_START();
    void SET_LOGIN_BUTTONS(bool logged_in);
    /// Shows a service::ServicePage; a user who is not logged in has to log in first.
    void KTSMS_LINK(int index);

    /// Shows the version, and whether the automatic login is on.
    void load();
    /// Saves the menu's mark. Without the automatic login the saved password is blanked.
    void save();

    /// Writes the account into the status bar.
    void show_logged_in();

    /// Raised when the account's data are there to be shown.
    platform::Event<> LoggedIn;

  private:
    void connect();
    void read_auto_login_mark();
    void blank_saved_password();
    void go_on_after_login();
    void show_logged_out();
    void panel_clicked(int panel);
    void open_in_browser(const core::Setting& link);

    platform::Platform& platform_;
    core::AppState& state_;
    platform::Timer& polling_;
    platform::MouseButton status_bar_button_ = platform::MouseButton::left;
};

}  // namespace compose
