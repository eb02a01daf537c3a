#pragma once

#include "compose/room.h"
#include "compose/schedule_time.h"
#include "platform/controls/buttons.h"
#include "platform/controls/displays.h"
#include "platform/controls/fields.h"
#include "platform/ports/platform.h"

#include <array>

namespace compose {

/// When a message is to be sent.
class SchedulePanel : Room {
  public:
    SchedulePanel(platform::Form& form, platform::Platform& platform);

    platform::OptionButton Option1{form_, u"Option1", u"즉시전송"};
    platform::OptionButton Option2{form_, u"Option2", u"예약전송(권장)"};
    platform::Label Label2_2{form_, u"Label2_2", u"발송예약 시간:"};
    platform::DatePicker DTP1{form_, u"DTP1"};
    platform::ComboBox Combo1{form_, u"Combo1"};
    platform::ComboBox Combo2{form_, u"Combo2"};
    platform::Label Label2_3{form_, u"Label2_3", u"시           분"};
    /// A list of shortcuts that is never shown, though it has rows and a handler.
    platform::ComboBox Combo6{form_, u"Combo6"};
    platform::CommandButton Command6{form_, u"Command6", u"설정"};
    /// Scratch values of the check before sending.
    std::array<platform::DatePicker, 2> DT1;

    /// Fills the lists of hours and minutes and shows the present time.
    void load();

    /// Moves the schedule shown forward and carries at most one hour (see `add_schedule_minutes`).
    void RESERVE_TIME_ADD(int minutes);

    /// Asks how far ahead a schedule has to lie.
    void show_settings();

  private:
    ScheduleControls controls() { return {DTP1, Combo1, Combo2}; }
    void choose_now();
    void choose_schedule();

    platform::Platform& platform_;
};

}  // namespace compose
