#pragma once

#include "core/app_state.h"
#include "core/settings.h"
#include "platform/controls/bars.h"
#include "platform/controls/displays.h"
#include "platform/controls/form.h"
#include "platform/controls/timer.h"
#include "platform/ports/platform.h"

namespace compose {

/// The user's login as the status bar and the file menu show it, and the ways to the service's pages.
class Session {
  public:
    /// `polling` is stopped while the user logs in by hand.
    Session(platform::Form& form, platform::Platform& platform, core::AppState& state,
            platform::Timer& polling);

    platform::StatusBar STBar1;
    platform::Image TOPLogo;
    platform::Menu cmdLogin;
    platform::Menu cmdLogOut;
    platform::Menu mnuAutoLogin;
    platform::Menu cmdGoPondira;
    platform::Menu cmdRegister;

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

    /// Raised when the account's data are there to be shown.
    platform::Event<> LoggedIn;

  private:
    void connect();
    void read_auto_login_mark();
    void go_on_after_login();
    void show_logged_in();
    void show_logged_out();
    void panel_clicked(int panel);
    void open_in_browser(const core::Setting& link);

    platform::Platform& platform_;
    core::AppState& state_;
    platform::Timer& polling_;
    platform::MouseButton status_bar_button_ = platform::MouseButton::left;
};

}  // namespace compose
