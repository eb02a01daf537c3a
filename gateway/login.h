#pragma once

#include "core/app_state.h"
#include "gateway/gateway.h"

namespace gateway {

/// What both login forms do with the carrier. Which accounts they accept afterwards differs: see each form.
class Login {
  public:
    Login(platform::Platform& platform, core::AppState& state)
        : platform_(platform), state_(state), gateway_(platform, state) {}

    /// Binds with the id and password. When that succeeds the user counts as logged in, the account's status
    /// and profile are fetched and the library is unbound; the user does not hear of a failure of these.
    /// Returns whether the bind succeeded.
    bool prove(const platform::Text& user_id, const platform::Text& password);

    /// The box for every bind that fails, whatever the library's reason.
    void show_failure();

    /// The account cannot be used: nobody is logged in.
    void refuse();

  private:
    platform::Platform& platform_;
    core::AppState& state_;
    Gateway gateway_;
};

}  // namespace gateway
