#pragma once

#include "core/app_state.h"
#include "platform/ports/platform.h"

#include <string>

namespace service {

/// The service's pages that are shown to who is logged in. The card manager has numbers of its own for them,
/// which do not follow the same order.
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

/// The address of the key in "urllink.ini", as the file has it at this moment; empty without one.
platform::Text page_address(const platform::Platform& platform, platform::TextView key);

/// What a page is told of the user, in bytes of cp949: who he is, and never his password.
std::string post_body(const core::AppState& state);

/// Shows a ServicePage to the user who is logged in; for another number an empty page. A step that fails does
/// not keep the next ones.
void show_service_page(platform::Platform& platform, core::AppState& state, int page);

/// Shows the page to find an id or password again.
void show_find_page(platform::Platform& platform, core::AppState& state);

/// Shows the page where a new member registers.
void show_sign_up_page(platform::Platform& platform, core::AppState& state);

}  // namespace service
