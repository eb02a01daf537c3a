#pragma once

#include "core/app_state.h"
#include "platform/controls/command_button.h"
#include "platform/controls/form.h"
#include "platform/controls/web_browser.h"
#include "platform/ports/platform.h"

namespace gateway {

/// A page of the service. Whoever opens it loads it, navigates its browser, sets the caption and shows it.
class frmWeb : public platform::Form {
  public:
    frmWeb(platform::Platform& platform, core::AppState& state);

    platform::WebBrowser WebBrowser{*this, u"WebBrowser"};
    platform::CommandButton Command1{*this, u"Command1", u"닫기(&C)"};

  protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;
    void Form_Escape() override { unload(); }

  private:
    platform::Platform& platform_;
    core::AppState& state_;
};

}  // namespace gateway
