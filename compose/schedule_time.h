#pragma once

#include "platform/controls/fields.h"
#include "platform/ports/platform.h"

namespace compose {

/// A date with its hour and minute, each chosen by its row.
struct ScheduleControls {
    platform::DatePicker& date;
    platform::ComboBox& hour;
    platform::ComboBox& minute;
};

/// Fills the lists: "00" to "23" and "00" to "59".
void fill_hours_and_minutes(const ScheduleControls& schedule);

/// Shows the moment.
void show_schedule(const ScheduleControls& schedule, platform::LocalTime moment);

/// Moves the moment shown forward. Deliberately carries at most one hour: when more than an hour is added
/// late in an hour, the list of minutes has no row for the sum, so the minute stays while the hour moves on.
void add_schedule_minutes(const ScheduleControls& schedule, int minutes);

/// The least lead of a schedule in minutes as the user has set it, 30 by default. Each caller has its own
/// rule for more than 90.
double saved_schedule_lead(const platform::Platform& platform);

}  // namespace compose
