#pragma once

#include "compose/room.h"
#include "platform/controls/buttons.h"
#include "platform/controls/displays.h"
#include "platform/controls/fields.h"
#include "platform/ports/platform.h"

namespace compose {

/// Whether the recipients of a voice may reply by pressing a number, and how many numbers there are.
class ReplyBox : Room {
  public:
    /// `container` is the panel of the voice.
    ReplyBox(platform::Form& form, platform::Platform& platform, platform::Control& container);

    platform::CheckBox Check2{form_, u"Check2", u"답변받기"};
    platform::Label Label3_5{form_, u"Label3_5", u"답변 개수:"};
    platform::ComboBox Combo4{form_, u"Combo4"};
    platform::CommandButton Command4{form_, u"Command4", u"답변받기 설명"};
    platform::Label Label3_4;

    void set_visible(bool visible);
};

}  // namespace compose
