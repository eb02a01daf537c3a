#pragma once

#include "compose/main_form.h"
#include "platform/controls/buttons.h"
#include "platform/controls/displays.h"
#include "platform/controls/fields.h"
#include "platform/controls/form.h"
#include "platform/ports/platform.h"
#include "send/send_job.h"

namespace send {

/// What the user reads when a job is done. `recipients` is how many there were to register; those
/// that are neither a success nor a failure count as stopped.
platform::Text report_text(const SendJob& job, int recipients, platform::LocalTime now);

/// The same in words for the first glance: how many are registered, and whom the user has to look after.
struct Outcome {
    platform::Text registered;
    /// Empty where there are none.
    platform::Text failed;
    platform::Text stopped;
    platform::Text unconfirmed;
};

Outcome outcome_of(const SendJob& job, int recipients);

/// For a note: all but those whom the user stopped himself.
platform::Text in_lines(const Outcome& outcome);

/// The window of the report.
class frmSendEndBox : public platform::Form {
  public:
    frmSendEndBox(platform::Platform& platform, compose::frmZent& main_form);

    platform::Label Registered{*this, u"Registered"};
    platform::Label Failed{*this, u"Failed"};
    platform::Label Stopped{*this, u"Stopped"};
    platform::Label Unconfirmed{*this, u"Unconfirmed"};
    platform::TextBox Text1{*this, u"Text1"};
    platform::CommandButton Command1{*this, u"Command1", u"발송결과"};
    platform::CommandButton Command2{*this, u"Command2", u"확인(&O)"};

    void show_outcome(const Outcome& outcome);
    /// Enables the button that shows the results.
    void offer_results() { Command1.set_enabled(true); }

  protected:
    void Form_Load() override;
    void Form_Escape() override { unload(); }

  private:
    compose::frmZent& main_form_;
};

}  // namespace send
