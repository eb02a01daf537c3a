#pragma once

#include "platform/controls/displays.h"
#include "platform/controls/form.h"
#include "platform/controls/panels.h"
#include "platform/ports/platform.h"

namespace compose {

/// Explains replies to a voice message with a picture from the installation.
class frmXTip : public platform::Form {
  public:
    explicit frmXTip(platform::Platform& platform);

    platform::Label Label1_1{*this, u"Label1_1", u"답변받기란??"};
    platform::Label Label1_0{*this, u"Label1_0"};
    platform::Image Image1{*this, u"Image1"};

  protected:
    void Form_Load() override;
    void Form_Escape() override { unload(); }

  private:
    platform::Platform& platform_;
};

}  // namespace compose
