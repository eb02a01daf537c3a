// Start and stop of the main window: placement, first tick, what is kept at the end.

#include "compose/main_form.h"
#include "core/app_state.h"
#include "core/boxes.h"
#include "core/centring.h"
#include "core/paths.h"
#include "core/settings.h"
#include "core/work_folders.h"
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
    state_.window.gMinTrackX =
        static_cast<std::int32_t>(std::lround(double(MINIMUM_WIDTH) / screen.twips_per_pixel_x));
    state_.window.gMinTrackY =
        static_cast<std::int32_t>(std::lround(double(MINIMUM_HEIGHT) / screen.twips_per_pixel_y));
    set_minimum_size(state_.window.gMinTrackX, state_.window.gMinTrackY);
    set_caption(Text(core::APPLICATION_TITLE));
    for (platform::PictureBox* box : {&Picture1, &Picture3, &Picture4, &Picture5, &Picture6})
        box->set_border(false);
    sender.load();
    session.load();
    restore_placement();
    core::MAKE_WORK_DIRS(platform_);

    schedule.load();
    recipients.RECIPIENT_COUNT_CAPTION();
}

void frmZent::restore_placement() {
    const auto read = [&](const core::Setting& setting) {
        return platform::trim(core::read_setting(platform_, setting));
    };
    state_.window.gWinMax = read(core::settings::WINDOW_STATE);
    state_.window.gWinLeft = read(core::settings::WINDOW_LEFT);
    state_.window.gWinTop = read(core::settings::WINDOW_TOP);
    state_.window.gWinWidth = read(core::settings::WINDOW_WIDTH);
    state_.window.gWinHeight = read(core::settings::WINDOW_HEIGHT);

    const platform::Screen screen = platform_.desktop.screen();
    const auto for_text = [&](int twips) { return static_cast<int>(std::lround(twips * screen.text_size)); };
    const platform::Placement centre = core::centred(screen, std::min(for_text(DEFAULT_WIDTH), screen.width),
                                                     std::min(for_text(DEFAULT_HEIGHT), screen.height));
    const bool never_placed = state_.window.gWinLeft.empty() && state_.window.gWinTop.empty() &&
                              state_.window.gWinWidth.empty() && state_.window.gWinHeight.empty();
    if (state_.window.gWinMax.empty() || never_placed) {
        move(centre);
        return;
    }
    if (platform::leading_number(state_.window.gWinMax) == 2 ||
        platform::equal_without_case(state_.window.gWinMax, u"max")) {
        move(centre);
        set_window_state(WindowState::maximised);
        return;
    }
    const int last_left = screen.left + screen.width - 1000;
    const int last_top = screen.top + screen.height - 600;
    move({.left = std::max(std::min(twips(state_.window.gWinLeft), last_left), screen.left),
          .top = std::min(std::max(twips(state_.window.gWinTop), screen.top), last_top),
          .width = std::min(twips(state_.window.gWinWidth), screen.width),
          .height = std::min(twips(state_.window.gWinHeight), screen.height)});
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
    // Behind the login, which lets the subject follow the text again.
    if (doors_.keep_draft) doors_.keep_draft();
    Timer1.set_enabled(true);
}

void frmZent::start_work() {
    const bool server_reached = update_check_at_start();
    if (doors_.NEW_SENDMAN_LOAD) doors_.NEW_SENDMAN_LOAD();
    DRAFT_RESET_IF_NO_KIND();
    // Without a network an automatic login would fail: the user logs in by hand.
    if (!server_reached) return session.cmdLogin_Click();
    if (!Timer2.tag().empty() || state_.session.gLoggedIn) return;

    if (core::setting_is_on(platform_, core::settings::AUTO_LOGIN) &&
        !core::read_setting(platform_, core::settings::LOGIN_ID).empty() &&
        !core::read_setting(platform_, core::settings::LOGIN_PASSWORD).empty()) {
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

/// Every end but a crash comes through here: the exit, the desktop's log-out, a signal.
void frmZent::Form_Unload() {
    voice.RFK1.stop();
    if (doors_.draft_ends) doors_.draft_ends();
    sender.save();
    // Settings files have always had this key, though the program never reads it.
    core::write_setting(platform_, core::settings::UPDATE_CHECK_AT_START,
                        mnuStartUpdate.checked() ? u"1" : u"0");
    session.save();
    save_placement();
    for (const Text& file : {core::isend_text(platform_), core::tmpman_txt(platform_)})
        platform::ignore_errors([&] { core::DELETE_FILE(platform_, file); });
    core::TEMP_ALL_DEL(platform_);
}

void frmZent::save_placement() {
    if (window_state() == WindowState::normal) {
        state_.window.gWinMax = u"0";
        state_.window.gWinLeft = platform::decimal(placement().left);
        state_.window.gWinTop = platform::decimal(placement().top);
        state_.window.gWinWidth = platform::decimal(placement().width);
        state_.window.gWinHeight = platform::decimal(placement().height);
    } else {
        state_.window.gWinMax = platform::decimal(static_cast<int>(window_state()));
    }
    core::write_setting(platform_, core::settings::WINDOW_STATE, state_.window.gWinMax);
    core::write_setting(platform_, core::settings::WINDOW_LEFT, state_.window.gWinLeft);
    core::write_setting(platform_, core::settings::WINDOW_TOP, state_.window.gWinTop);
    core::write_setting(platform_, core::settings::WINDOW_WIDTH, state_.window.gWinWidth);
    core::write_setting(platform_, core::settings::WINDOW_HEIGHT, state_.window.gWinHeight);
}

}  // namespace compose
