#pragma once

#include "gateway/service_doors.h"
#include "platform/controls/command_button.h"
#include "platform/controls/form.h"
#include "platform/controls/text_box.h"
#include "platform/ports/platform.h"

namespace send {

/// The report of a send job.
class frmSendEndBox : public platform::Form {
  public:
    frmSendEndBox(platform::Platform& platform, const gateway::ServiceDoors& doors);

    platform::TextBox Text1{*this, u"Text1"};
    platform::CommandButton Command1{*this, u"Command1", u"발송결과"};
    platform::CommandButton Command2{*this, u"Command2", u"확인(&O)"};

    /// There is a result page to look at. Without a way to it the button stays grey.
    void offer_results() { Command1.set_enabled(doors_.KTSMS_LINK != nullptr); }

  protected:
    void Form_Load() override;
    void Form_Escape() override { unload(); }

  private:
    const gateway::ServiceDoors& doors_;
};

}  // namespace send
