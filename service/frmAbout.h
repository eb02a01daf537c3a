#pragma once

#include "platform/controls/buttons.h"
#include "platform/controls/displays.h"
#include "platform/controls/form.h"
#include "platform/controls/panels.h"
#include "platform/ports/platform.h"

namespace service {

/// The program's name and version.
class frmAbout : public platform::Form {
  public:
    explicit frmAbout(platform::Platform& platform);

    platform::Image Image1{*this, u"Image1"};
    platform::Label Label1_0{*this, u"Label1_0"};
    platform::Label Label1_1{*this, u"Label1_1"};
    /// The maker's name; a click opens the maker's page.
    platform::Label Label1_3{*this, u"Label1_3", u"Cardvale"};
    platform::CommandButton Command1{*this, u"Command1", u"확인(&O)"};

  protected:
    void Form_Load() override;
    void Form_Escape() override { unload(); }

  private:
    platform::Platform& platform_;
};

}  // namespace service
