// Start and stop of the main window: placement, first tick, what is kept at the end.

#include "compose/handover_files.h"
#include "compose/main_form.h"
#include "core/deployment.h"
#include "core/files.h"
#include "core/ini_file.h"
#include "core/windows.h"
#include "platform/error.h"
#include "platform/text/format.h"
#include "platform/text/number.h"

#include <algorithm>
#include <cmath>

namespace compose {

using platform::Text;
using platform::WindowState;

namespace {

constexpr int DEFAULT_WIDTH = 12000;
constexpr int DEFAULT_HEIGHT = 9000;
constexpr int MINIMUM_WIDTH = 11160;
constexpr int MINIMUM_HEIGHT = 7395;

/// A setting as a number of twips, limited to what a window can have.
int twips(const Text& value) {
    return static_cast<int>(std::clamp(platform::leading_number(value), -1e6, 1e6));
}

}  // namespace

void frmZent::Form_Load() {
    const platform::Screen screen = platform_.desktop.screen();
    state_.gMinTrackX =
        static_cast<std::int32_t>(std::lround(double(MINIMUM_WIDTH) / screen.twips_per_pixel_x));
    state_.gMinTrackY =
        static_cast<std::int32_t>(std::lround(double(MINIMUM_HEIGHT) / screen.twips_per_pixel_y));
    set_minimum_size(state_.gMinTrackX, state_.gMinTrackY);
    set_caption(Text(core::APPLICATION_TITLE));
    for (platform::PictureBox* box : {&Picture1, &Picture3, &Picture4, &Picture5, &Picture6})
        box->set_border(false);
    session.load();
    restore_placement();
    core::MAKE_WORK_DIRS(platform_);

    schedule.load();
    recipients.RECIPIENT_COUNT_CAPTION();
}

void frmZent::restore_placement() {
    const Text ini = core::application_ini(platform_);
    const auto read = [&](platform::TextView key) {
        return platform::trim(core::INI_READ(platform_, ini, u"WINDOW SIZE", key));
    };
    state_.gWinMax = read(u"M_MAX");
    state_.gWinLeft = read(u"M_LEFT");
    state_.gWinTop = read(u"M_TOP");
    state_.gWinWidth = read(u"M_WIDTH");
    state_.gWinHeight = read(u"M_HEIGHT");

    const platform::Screen screen = platform_.desktop.screen();
    const platform::Placement centre = core::centred(screen, DEFAULT_WIDTH, DEFAULT_HEIGHT);
    const bool never_placed = state_.gWinLeft.empty() && state_.gWinTop.empty() && state_.gWinWidth.empty() &&
                              state_.gWinHeight.empty();
    if (state_.gWinMax.empty() || never_placed) {
        move(centre);
        return;
    }
    if (platform::leading_number(state_.gWinMax) == 2 ||
        platform::equal_without_case(state_.gWinMax, u"max")) {
        move(centre);
        set_window_state(WindowState::maximised);
        return;
    }
    move({.left = std::max(std::min(twips(state_.gWinLeft), screen.width - 1000), 0),
          .top = std::min(std::max(twips(state_.gWinTop), 0), screen.height - 600),
          .width = std::min(twips(state_.gWinWidth), screen.width),
          .height = std::min(twips(state_.gWinHeight), screen.height)});
    if (placement().width <= 0 || placement().height <= 0) move(centre);
}

void frmZent::Form_Activate() {
    if (!tag().empty()) return;
    set_tag(u"OK");
    Timer2.set_enabled(true);
}

void frmZent::first_tick() {
    Timer2.set_enabled(false);
    try {
        start_work();
    } catch (const platform::RuntimeError& error) {
        core::show_error(platform_.desktop, error, platform::BoxIcon::exclamation);
    }
    Timer1.set_enabled(true);
}

void frmZent::start_work() {
    const bool server_reached = update_check_at_start();
    if (doors_.NEW_SENDMAN_LOAD) doors_.NEW_SENDMAN_LOAD();
    DRAFT_RESET_IF_NO_KIND();
    // Without a network an automatic login would fail: the user logs in by hand.
    if (!server_reached) return session.cmdLogin_Click();
    if (!Timer2.tag().empty() || state_.gLoggedIn) return;

    const Text login = core::login_ini(platform_);
    if (core::INI_IS_ON(platform_, core::application_ini(platform_), u"LOGIN", u"AUTOLOGIN") &&
        !core::INI_READ(platform_, login, u"LOGIN", u"LOGINID").empty() &&
        !core::INI_READ(platform_, login, u"LOGIN", u"LOGINPW").empty()) {
        session.AUTO_LOGIN_START();
    } else {
        session.cmdLogin_Click();
    }
}

bool frmZent::update_check_at_start() {
    // Deliberately no check: the menu's mark is kept in the settings, but nothing sets this tag.
    if (platform::leading_number(mnuStartUpdate.tag()) == 0 || !doors_.update_check_at_start) return true;
    return doors_.update_check_at_start();
}

void frmZent::Form_Unload() {
    voice.RFK1.stop();
    const Text ini = core::application_ini(platform_);
    sender.save();
    // Settings files have always had this key, though the program never reads it.
    core::INI_WRITE(platform_, ini, u"SET", u"STARTUPDATECHECK", mnuStartUpdate.checked() ? u"1" : u"0");
    session.save();
    save_placement();
    for (const Text& file : {isend_text(platform_), tmpman_txt(platform_)})
        platform::ignore_errors([&] { core::DELETE_FILE(platform_, file); });
    core::TEMP_ALL_DEL(platform_);
}

void frmZent::save_placement() {
    if (window_state() == WindowState::normal) {
        state_.gWinMax = u"0";
        state_.gWinLeft = platform::decimal(placement().left);
        state_.gWinTop = platform::decimal(placement().top);
        state_.gWinWidth = platform::decimal(placement().width);
        state_.gWinHeight = platform::decimal(placement().height);
    } else {
        state_.gWinMax = platform::decimal(static_cast<int>(window_state()));
    }
    const Text ini = core::application_ini(platform_);
    core::INI_WRITE(platform_, ini, u"WINDOW SIZE", u"M_MAX", state_.gWinMax);
    core::INI_WRITE(platform_, ini, u"WINDOW SIZE", u"M_LEFT", state_.gWinLeft);
    core::INI_WRITE(platform_, ini, u"WINDOW SIZE", u"M_TOP", state_.gWinTop);
    core::INI_WRITE(platform_, ini, u"WINDOW SIZE", u"M_WIDTH", state_.gWinWidth);
    core::INI_WRITE(platform_, ini, u"WINDOW SIZE", u"M_HEIGHT", state_.gWinHeight);
}

}  // namespace compose
