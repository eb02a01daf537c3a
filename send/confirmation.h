#pragma once

#include "compose/main_form.h"
#include "core/app_state.h"
#include "platform/controls/buttons.h"
#include "platform/controls/displays.h"
#include "platform/controls/fields.h"
#include "platform/controls/form.h"
#include "platform/ports/platform.h"
#include "send/forecast.h"

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
    /// What the first recipient gets.
    platform::TextBox Preview{*this, u"Preview"};
    platform::Label People{*this, u"People"};
    platform::Label When{*this, u"When"};
    platform::Label Amount{*this, u"Amount"};
    platform::Label Nameless{*this, u"Nameless"};
    platform::Label Lost{*this, u"Lost"};
    platform::CommandButton TakeOut{*this, u"TakeOut", u"그 글자 빼기(&R)"};
    platform::CommandButton Command1{*this, u"Command1", u"발송시작(&S)"};
    platform::CommandButton Command2{*this, u"Command2", u"취소(&C)"};

    /// Shows the confirmation text and what the job will come to.
    void show_draft(const compose::frmZent& form, const platform::Text& text, int recipients,
                    const Forecast& forecast);

    /// Says no.
    void cancel() { answer(false); }

  protected:
    void Form_Load() override;
    void Form_Escape() override { cancel(); }
    void Form_Close() override { cancel(); }

  private:
    void answer(bool start);

    core::AppState& state_;
};

}  // namespace send
