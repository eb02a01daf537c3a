#pragma once

#include "platform/controls/bars.h"
#include "platform/controls/buttons.h"
#include "platform/controls/displays.h"
#include "platform/controls/form.h"
#include "platform/controls/panels.h"
#include "platform/ports/platform.h"

namespace service {

/// Guidance for new members: what the service costs, and the application form to send in by fax.
class frmPondiraReg : public platform::Form {
  public:
    explicit frmPondiraReg(platform::Platform& platform);

    platform::Frame Frame1{*this, u"Frame1", u"폰디라 요금 안내"};
    platform::Label Label1{*this, u"Label1"};
    platform::Frame Frame2{*this, u"Frame2", u"가입신청서 작성"};
    platform::Label Label2{*this, u"Label2"};
    platform::Label Label3{*this, u"Label3"};
    platform::Label Label6{*this, u"Label6"};
    platform::CommandButton Command1{*this, u"Command1", u"가입신청서 다운받기(&U)"};
    platform::CommandButton Command2{*this, u"Command2", u"취소(&C)"};
    platform::Menu mnuDownLoad{*this, u"mnuDownLoad", u"다운로드"};
    platform::Menu mnuDoc_0{*this, u"mnuDoc_0", u"워드문서(DOC)"};
    platform::Menu mnuDoc_1{*this, u"mnuDoc_1", u"한글문서(HWP)"};
    platform::Menu mnuDoc_2{*this, u"mnuDoc_2", u"PDF문서(PDF)"};

    /// Opens the application form in the format of entry 0 to 2 of the menu, outside the program.
    void download_doc(int index);

  protected:
    void Form_Load() override;
    void Form_Escape() override { unload(); }

  private:
    platform::Platform& platform_;
};

}  // namespace service
