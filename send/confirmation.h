#pragma once

#include "compose/main_form.h"
#include "core/app_state.h"
#include "platform/controls/buttons.h"
#include "platform/controls/displays.h"
#include "platform/controls/fields.h"
#include "platform/controls/form.h"
#include "platform/ports/platform.h"

namespace send {

/// The recipients of a draft: the checked rows.
struct Recipients {
    int count = 0;
    platform::Text first_name;
    platform::Text first_number;
};

/// What the user reads before the message is sent.
platform::Text confirmation_text(const compose::frmZent& form, const compose::CarrierKind& kind,
                                 const Recipients& recipients);

/// Shows what is about to be sent and asks for the last time. The answer is in `gDialogConfirmed`.
class frmSBox : public platform::Form {
  public:
    frmSBox(platform::Platform& platform, core::AppState& state);

    platform::TextBox Text1{*this, u"Text1"};
    platform::Label Label1{*this, u"Label1", u"발송을 시작하시겠습니까?"};
    platform::CommandButton Command1{*this, u"Command1", u"발송시작(&S)"};
    platform::CommandButton Command2{*this, u"Command2", u"취소(&C)"};

  protected:
    void Form_Load() override;
    void Form_Escape() override { answer(false); }
    void Form_Close() override { answer(false); }

  private:
    void answer(bool start);

    core::AppState& state_;
};

}  // namespace send
