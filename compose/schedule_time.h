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

/// Moves the moment shown forward. Only one hour's carry is made: with more than an hour to add late in an
/// hour, the minute has no row to go to and stays while the hour has moved. Schedules have always come out
/// so.
void add_schedule_minutes(const ScheduleControls& schedule, int minutes);

/// The least lead of a schedule in minutes as the user has set it, 30 at first. Beyond 90 each reader has its
/// own rule.
double saved_schedule_lead(const platform::Platform& platform);

}  // namespace compose
