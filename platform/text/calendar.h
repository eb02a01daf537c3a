#pragma once

#include <chrono>

namespace platform {

/// A moment of local time, to the second. Time zones are never considered.
using LocalTime = std::chrono::local_seconds;

/// A moment taken apart as a calendar and a clock show it.
struct CalendarTime {
    int year = 0, month = 0, day = 0;
    int hour = 0, minute = 0, second = 0;
};

/// The moment of a date and a time of day. Parts out of range carry over: minute 75 is the next hour's 15th,
/// month 13 the next year's January, day 30 of a February its second day of March.
LocalTime make_time(int year, int month, int day, int hour = 0, int minute = 0, int second = 0);

CalendarTime break_up(LocalTime time);

LocalTime add_days(LocalTime time, int days);

/// Midnight at the beginning of the day.
LocalTime date_part(LocalTime time);

/// The time since that midnight.
std::chrono::seconds time_of_day(LocalTime time);

/// a minus b in days, negative when a is earlier.
double day_difference(LocalTime a, LocalTime b);

}  // namespace platform
