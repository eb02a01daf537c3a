#include "platform/text/format.h"

#include <algorithm>
#include <cmath>

namespace platform {

namespace {

constexpr TextView AM_PM = u"ampm";

bool is_field_letter(char16_t letter) { return TextView(u"ymdhns").find(letter) != TextView::npos; }

/// The number, padded with zeros to the width.
Text padded(int number, std::size_t width) {
    const Text digits = decimal(number);
    return digits.size() < width ? Text(width - digits.size(), u'0') + digits : digits;
}

Text half_of_day(const CalendarTime& time) { return time.hour < 12 ? u"오전" : u"오후"; }

int hour_of_half(const CalendarTime& time) { return time.hour % 12 == 0 ? 12 : time.hour % 12; }

}  // namespace

Text format_date(LocalTime moment, TextView pattern) {
    const Text fields = lower_case(pattern);
    const bool in_halves = contains(fields, AM_PM);
    const CalendarTime time = break_up(moment);
    if (fields == u"long time") return format_date(moment, u"ampm h:nn:ss");

    Text out;
    char16_t previous_field = 0;
    for (std::size_t at = 0; at < fields.size();) {
        if (fields.compare(at, AM_PM.size(), AM_PM) == 0) {
            out += half_of_day(time);
            at += AM_PM.size();
            continue;
        }
        char16_t field = fields[at];
        if (!is_field_letter(field)) {
            out += pattern[at++];
            continue;
        }
        const std::size_t end = std::min(fields.find_first_not_of(field, at), fields.size());
        const std::size_t width = end - at;
        if (field == u'm' && previous_field == u'h') field = u'n';
        switch (field) {
            case u'y':
                out += padded(time.year, width);
                break;
            case u'm':
                out += padded(time.month, width);
                break;
            case u'd':
                out += padded(time.day, width);
                break;
            case u'h':
                out += padded(in_halves ? hour_of_half(time) : time.hour, width);
                break;
            case u'n':
                out += padded(time.minute, width);
                break;
            default:
                out += padded(time.second, width);
                break;
        }
        previous_field = field;
        at = end;
    }
    return out;
}

Text weekday(LocalTime time) {
    constexpr TextView NAMES[] = {u"일", u"월", u"화", u"수", u"목", u"금", u"토"};
    const std::chrono::weekday day(std::chrono::floor<std::chrono::days>(time));
    return Text(NAMES[day.c_encoding()]) + u"요일";
}

Text format_day_fraction(double days, TextView pattern) {
    constexpr int SECONDS_A_DAY = 86'400;
    const double part_of_day = std::fabs(days - std::trunc(days));
    const auto seconds = static_cast<int>(std::lround(part_of_day * SECONDS_A_DAY));
    return format_date(make_time(1899, 12, 30, 0, 0, seconds), pattern);
}

}  // namespace platform
