#pragma once

#include "compose/schedule_time.h"
#include "platform/controls/buttons.h"
#include "platform/controls/displays.h"
#include "platform/controls/fields.h"
#include "platform/controls/form.h"
#include "platform/ports/platform.h"

#include <array>

namespace compose {

/// When a message is to be sent.
class SchedulePanel {
  public:
    SchedulePanel(platform::Form& form, platform::Platform& platform);

    platform::OptionButton Option1;
    platform::OptionButton Option2;
    platform::Label Label2_2;
    platform::DatePicker DTP1;
    platform::ComboBox Combo1;
    platform::ComboBox Combo2;
    platform::Label Label2_3;
    /// A list of shortcuts that is never shown, though it has rows and a handler.
    platform::ComboBox Combo6;
    platform::CommandButton Command6;
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
