#pragma once

#include <functional>

namespace gateway {

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
    /// 0 results, 1 charges, 2 member data, 3 inbox.
    std::function<void(int)> KTSMS_LINK;
};

}  // namespace gateway
