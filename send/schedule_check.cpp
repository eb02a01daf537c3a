#include "compose/schedule_time.h"
#include "core/boxes.h"
#include "platform/text/format.h"
#include "platform/text/number.h"
#include "send/send_check.h"

#include <algorithm>

namespace send {

using platform::LocalTime;
using platform::Text;

namespace {

/// The lead that the user has chosen, in minutes. Deliberately 90 for too large a lead, though it counts as
/// 30 when the schedule is set.
double minimum_lead(const platform::Platform& platform) {
    return std::min(static_cast<double>(platform::round_half_even(compose::saved_schedule_lead(platform))),
                    90.0);
}

LocalTime scheduled_moment(const compose::frmZent& form) {
    return platform::date_part(form.schedule.DTP1.value()) +
           std::chrono::hours(form.schedule.Combo1.list_index()) +
           std::chrono::minutes(form.schedule.Combo2.list_index());
}

long long date_digits(LocalTime time) {
    return static_cast<long long>(platform::leading_number(platform::format_date(time, u"yyyyMMdd")));
}

/// The digits of day, hour, minute and second between two moments, read as one number: 30 minutes are 3000
/// and an hour 10000. Deliberately digits, not minutes: any later date passes, as users who schedule past
/// midnight are used to.
double lead_digits(LocalTime scheduled, LocalTime now) {
    return platform::leading_number(
        platform::decimal(date_digits(scheduled) - date_digits(now)) +
        platform::format_day_fraction(platform::day_difference(scheduled, now), u"hhmm00"));
}

}  // namespace

bool schedule_is_possible(const platform::Platform& platform, compose::frmZent& form) {
    if (!form.schedule.Option2.chosen()) return true;
    const double minutes = minimum_lead(platform);
    // Deliberately without the check for a past time too: a user who switches the lead off may send at once.
    if (minutes == 0) return true;
    form.schedule.DT1[0].set_value(scheduled_moment(form));
    form.schedule.DT1[1].set_value(platform.clock.now());
    const LocalTime scheduled = form.schedule.DT1[0].value();
    const LocalTime now = form.schedule.DT1[1].value();
    if (lead_digits(scheduled, now) >= minutes * 100 && scheduled >= now) return true;
    core::warn(platform.desktop,
               u"예약 전송은 현재 시간에서 " + platform::decimal(static_cast<long long>(minutes)) +
                   u"분 후부터 가능합니다!",
               u"시간 확인");
    return false;
}

}  // namespace send
