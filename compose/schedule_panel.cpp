#include "compose/schedule_panel.h"

#include "compose/frmSet1.h"
#include "platform/text/number.h"

#include <algorithm>

namespace compose {

SchedulePanel::SchedulePanel(platform::Form& form, platform::Platform& platform)
    : Room(form), platform_(platform) {
    Option1.set_chosen(true);
    DTP1.set_enabled(false);
    Combo1.set_enabled(false);
    Combo2.set_enabled(false);
    Command6.hide();
    Command6.set_tool_tip(u"최소 예약전송 시간 설정");
    Combo6.hide();
    for (const int minutes : {1, 2, 3, 4, 5, 10, 20, 30, 60}) {
        Combo6.add_row(platform::decimal(minutes) + u"분후", minutes);
    }

    Option1.Click.connect([this] { choose_now(); });
    Option2.Click.connect([this] { choose_schedule(); });
    Combo6.Click.connect([this] {
        if (Combo6.visible()) RESERVE_TIME_ADD(Combo6.item_data(Combo6.list_index()));
    });
    Command6.Click.connect([this] { show_settings(); });
}

void SchedulePanel::load() {
    fill_hours_and_minutes(controls());
    show_schedule(controls(), platform_.clock.now());
}

void SchedulePanel::choose_now() {
    Option2.set_chosen(false);
    DTP1.set_enabled(false);
    Combo1.set_enabled(false);
    Combo2.set_enabled(false);
    Combo6.hide();
    Command6.hide();
}

void SchedulePanel::choose_schedule() {
    Option1.set_chosen(false);
    DTP1.set_enabled(true);
    Combo1.set_enabled(true);
    Combo2.set_enabled(true);
    Command6.show();
    show_schedule(controls(), platform_.clock.now());

    double lead = saved_schedule_lead(platform_);
    // Deliberately 30 for too large a lead, though it counts as 90 when the draft is checked.
    if (lead > 90) lead = 30;
    // A margin, so that the lead still holds when the message is finished.
    if (lead > 0) lead += 2;
    RESERVE_TIME_ADD(static_cast<int>(platform::round_half_even(std::max(lead, -60.0))));
}

void SchedulePanel::show_settings() { frmSet1(platform_).show_modal(); }

void SchedulePanel::RESERVE_TIME_ADD(int minutes) { add_schedule_minutes(controls(), minutes); }

}  // namespace compose
