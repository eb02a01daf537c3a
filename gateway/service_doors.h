#pragma once

#include <functional>

namespace gateway {

/// The service's pages that are shown to who is logged in.
enum ServicePage { PAGE_RESULTS = 0, PAGE_CHARGES = 1, PAGE_MEMBER_DATA = 2, PAGE_INBOX = 3 };

/// The ways to the service's pages. The composition root fills them; a button whose door nobody has filled is
/// disabled.
struct ServiceDoors {
    /// Guidance for new members.
    std::function<void()> sign_up;
    /// The page where a new member registers.
    std::function<void()> new_member;
    std::function<void()> find_id_or_password;
    std::function<void()> service_guide;
    std::function<void()> home_page;
    /// Shows a ServicePage.
    std::function<void(int)> KTSMS_LINK;
};

}  // namespace gateway
