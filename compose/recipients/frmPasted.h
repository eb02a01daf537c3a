#pragma once

#include "compose/recipients/pasted_recipients.h"
#include "platform/controls/bars.h"
#include "platform/controls/buttons.h"
#include "platform/controls/displays.h"
#include "platform/controls/fields.h"
#include "platform/controls/form.h"
#include "platform/controls/timer.h"
#include "platform/ports/platform.h"

#include <optional>

namespace compose {

/// The window in which pasted lines become recipients: it shows how far that is, can be stopped, and reports
/// what came of it. Lines that were left over can be corrected and tried again.
class frmPasted : public platform::Form {
  public:
    frmPasted(platform::Platform& platform, RecipientList& recipients, platform::Text text);

    platform::Label Label1{*this, u"Label1"};
    platform::Label Label2{*this, u"Label2"};
    platform::Label Label3{*this, u"Label3", u"추가하지 못한 줄입니다. 고쳐서 다시 시도할 수 있습니다."};
    platform::ProgressBar PBar1{*this, u"PBar1"};
    platform::TextBox Text1{*this, u"Text1"};
    platform::CommandButton Command1{*this, u"Command1", u"다시 시도(&R)"};
    platform::CommandButton Command2{*this, u"Command2", u"닫기(&C)"};
    platform::CommandButton Command3{*this, u"Command3", u"중지(&S)"};
    platform::Timer Timer1;

  protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;
    void Form_Escape() override { Form_Close(); }
    void Form_Close() override { reading() ? stop() : unload(); }

  private:
    bool reading() const { return filled_.has_value(); }
    void begin(const platform::Text& text);
    void read_on();
    void stop();
    void report();

    RecipientList& recipients_;
    platform::Text text_;
    std::optional<PastedRecipients> pasted_;
    /// No hand-over may change the list meanwhile.
    std::optional<platform::StandingQuestion> question_;
    std::optional<platform::FilledList> filled_;
};

}  // namespace compose
