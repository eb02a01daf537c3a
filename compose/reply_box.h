#pragma once

#include "platform/controls/buttons.h"
#include "platform/controls/displays.h"
#include "platform/controls/fields.h"
#include "platform/controls/form.h"
#include "platform/ports/platform.h"

namespace compose {

/// Whether the recipients of a voice may reply by pressing a number, and how many numbers there are.
class ReplyBox {
  public:
    /// `container` is the panel of the voice.
    ReplyBox(platform::Form& form, platform::Platform& platform, platform::Control& container);

    platform::CheckBox Check2;
    platform::Label Label3_5;
    platform::ComboBox Combo4;
    platform::CommandButton Command4;
    platform::Label Label3_4;

    void set_visible(bool visible);
};

}  // namespace compose
