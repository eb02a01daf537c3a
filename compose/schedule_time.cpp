#include "compose/schedule_time.h"

#include "core/settings.h"
#include "platform/error.h"
#include "platform/text/format.h"
#include "platform/text/number.h"

namespace compose {

void fill_hours_and_minutes(const ScheduleControls& schedule) {
    for (int hour = 0; hour < 24; ++hour) schedule.hour.add_row(platform::format_number(hour, u"00"));
    for (int minute = 0; minute < 60; ++minute)
        schedule.minute.add_row(platform::format_number(minute, u"00"));
}

void show_schedule(const ScheduleControls& schedule, platform::LocalTime moment) {
    schedule.date.set_value(platform::date_part(moment));
    schedule.hour.set_list_index(platform::break_up(moment).hour);
    schedule.minute.set_list_index(platform::break_up(moment).minute);
}

void add_schedule_minutes(const ScheduleControls& schedule, int minutes) {
    const auto choose = [](platform::ComboBox& combo, int row) {
        platform::ignore_errors([&] { combo.set_list_index(row); });
    };
    const int minute = schedule.minute.list_index() + minutes;
    if (minute < 60) {
        choose(schedule.minute, minute);
        return;
    }
    choose(schedule.minute, minute - 60);
    const int hour = schedule.hour.list_index() + 1;
    if (hour < 24) {
        choose(schedule.hour, hour);
        return;
    }
    schedule.date.set_value(platform::add_days(schedule.date.value(), 1));
    choose(schedule.hour, hour - 24);
}

double saved_schedule_lead(const platform::Platform& platform) {
    const platform::Text saved = core::read_setting(platform, core::settings::SCHEDULE_LEAD);
    return platform::leading_number(saved);
}

}  // namespace compose
