#include "platform/text/calendar.h"

namespace platform {

namespace chrono = std::chrono;

LocalTime make_time(int year, int month, int day, int hour, int minute, int second) {
    const chrono::year_month first_month{chrono::year{year}, chrono::month{1}};
    const chrono::local_days first_day{(first_month + chrono::months{month - 1}) / chrono::day{1}};
    return first_day + chrono::days{day - 1} + chrono::hours{hour} + chrono::minutes{minute} +
           chrono::seconds{second};
}

CalendarTime break_up(LocalTime time) {
    const chrono::year_month_day date{chrono::floor<chrono::days>(time)};
    const chrono::hh_mm_ss clock{time_of_day(time)};
    return {static_cast<int>(date.year()),
            static_cast<int>(static_cast<unsigned>(date.month())),
            static_cast<int>(static_cast<unsigned>(date.day())),
            static_cast<int>(clock.hours().count()),
            static_cast<int>(clock.minutes().count()),
            static_cast<int>(clock.seconds().count())};
}

LocalTime add_days(LocalTime time, int days) { return time + chrono::days{days}; }

LocalTime date_part(LocalTime time) { return chrono::floor<chrono::days>(time); }

chrono::seconds time_of_day(LocalTime time) { return time - date_part(time); }

double day_difference(LocalTime a, LocalTime b) {
    return chrono::duration<double, chrono::days::period>(a - b).count();
}

}  // namespace platform
