#pragma once

#include "core/app_state.h"
#include "gateway/login.h"
#include "platform/controls/displays.h"
#include "platform/controls/fields.h"
#include "platform/controls/form.h"
#include "platform/controls/timer.h"
#include "platform/ports/platform.h"

namespace gateway {

/// The login with the saved id and password. It accepts an account by the contract's state (`gServiceState`),
/// whatever its kind of service: the manual login looks at the kind alone, and both stay so.
class frmAutoLogin : public platform::Form {
  public:
    frmAutoLogin(platform::Platform& platform, core::AppState& state);

    platform::Animation Animation1{*this, u"Animation1"};
    platform::Label Label1{*this, u"Label1", u"잠시만 기다려 주십시오..."};
    platform::TextBox Text1;
    platform::TextBox Text2;
    platform::Timer Timer1;

  protected:
    void Form_Load() override;
    void Form_Activate() override;
    /// The login is on its way; the form closes by itself.
    void Form_Close() override {}

  private:
    void log_in();
    void accept_or_refuse();

    platform::Platform& platform_;
    core::AppState& state_;
    Login login_;
};

}  // namespace gateway
