#pragma once

#include "platform/controls/buttons.h"
#include "platform/controls/displays.h"
#include "platform/controls/fields.h"
#include "platform/controls/form.h"
#include "platform/controls/panels.h"
#include "platform/ports/platform.h"

namespace compose {

/// The settings: the least lead of a schedule. A new lead leaves the schedule that the main window shows as
/// it is and applies from the next one.
class frmSet1 : public platform::Form {
  public:
    explicit frmSet1(platform::Platform& platform);

    platform::Frame Frame1{*this, u"Frame1", u"최소 예약전송 시간 설정"};
    platform::Label Label1{*this, u"Label1", u"현재 시간에서                          전송가능"};
    platform::ComboBox Combo1{*this, u"Combo1"};
    platform::CommandButton Command1{*this, u"Command1", u"확인(&O)"};
    platform::CommandButton Command2{*this, u"Command2", u"닫기(&C)"};

  protected:
    void Form_Load() override;
    void Form_Escape() override { unload(); }

  private:
    void Command1_Click();

    platform::Platform& platform_;
};

}  // namespace compose
