#pragma once

#include "core/app_state.h"
#include "core/settings.h"
#include "platform/ports/platform.h"

#include <string>

namespace service {

/// The service's pages that are shown to a user who is logged in, by their own numbers and by those that the
/// card manager hands over for them, in another order.
enum ServicePage {
    PAGE_RESULTS = 0,
    PAGE_CHARGES = 1,
    PAGE_MEMBER_DATA = 2,
    PAGE_INBOX = 3,
    CARD_MANAGER_RESULTS = 50,
    CARD_MANAGER_CHARGES = 51,
    CARD_MANAGER_INBOX = 52,
    CARD_MANAGER_MEMBER_DATA = 53
};

/// The address of a link of the settings, as the file has it at this moment; empty without one.
platform::Text page_address(const platform::Platform& platform, const core::Setting& link);

/// Opens the page in the user's own browser; without an address the browser opens empty. A failure is silent.
void OPEN_BROWSER(platform::Platform& platform, const platform::Text& url);

/// What is posted to a page about the user, in bytes of cp949: the id and never the password.
std::string post_body(const core::AppState& state);

/// Shows a ServicePage to the user who is logged in; an unknown number opens a blank page. Each
/// step runs even if the one before failed.
void show_service_page(platform::Platform& platform, core::AppState& state, int page);

/// Shows the page to find an id or password again.
void show_find_page(platform::Platform& platform, core::AppState& state);

/// Shows the page where a new member registers.
void show_sign_up_page(platform::Platform& platform, core::AppState& state);

}  // namespace service
