#pragma once

#include "gateway/gateway.h"

namespace gateway {

/// The film of the busy picture.
platform::Text busy_film(const platform::Platform& platform);

/// What both login forms do with the carrier; what they accept afterwards differs and is told in each.
class Login {
  public:
    Login(platform::Platform& platform, core::AppState& state)
        : platform_(platform), state_(state), gateway_(platform, state) {}

    /// Binds with the id and password. When that succeeds the user counts as logged in, the account's status
    /// and profile are fetched and the library is unbound; failures of these two are not told. Returns
    /// whether the bind succeeded.
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
