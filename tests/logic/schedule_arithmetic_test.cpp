// Every minute of a day with every lead that the settings offer: what the schedule begins with, and from when
// on it may be sent. Both are worked out here once more, in plain minutes.

#include "send/send_check.h"
#include "tests/support/main_window.h"

#include <gtest/gtest.h>

namespace {

using platform::LocalTime;
using platform::make_time;

constexpr int A_DAY = 24 * 60;
constexpr int LEADS[] = {0, 20, 30, 40, 50, 60, 90};

/// The last day of a year, so that a carried day carries month and year too.
const LocalTime DAY = make_time(2026, 12, 31);

LocalTime at(int minutes, int seconds = 0) {
    return DAY + std::chrono::minutes(minutes) + std::chrono::seconds(seconds);
}

struct ScheduleArithmetic : testing::Test, tests::MainWindow {
    void SetUp() override { form.load(); }

    void begin_schedule(int now, int lead) {
        clock.set(at(now, 59));
        save_setting(u"SET", u"P_TIME", platform::decimal(lead));
        form.Option1.set_chosen(true);
        form.Option2.set_chosen(true);
    }
    /// The schedule as it shows, in minutes from the day's begin.
    int shown() const {
        const auto day =
            std::chrono::duration_cast<std::chrono::minutes>(platform::date_part(form.DTP1.value()) - DAY);
        return static_cast<int>(day.count()) + form.Combo1.list_index() * 60 + form.Combo2.list_index();
    }
    void show(int minutes) {
        form.DTP1.set_value(platform::date_part(at(minutes)));
        form.Combo1.set_list_index(minutes / 60 % 24);
        form.Combo2.set_list_index(minutes % 60);
    }
    bool may_send() {
        // Only whether it is told, not how: the box's words have their own test.
        class Quiet : public ScriptedDesktop {
          public:
            using ScriptedDesktop::ScriptedDesktop;
            platform::BoxAnswer message_box(const platform::MessageBox&) override {
                return platform::BoxAnswer::ok;
            }
        } quiet(clock);
        const platform::Platform machine = on(quiet);
        return send::schedule_is_possible(machine, form);
    }
};

TEST_F(ScheduleArithmetic, TheScheduleBeginsLeadAndMarginAfterThePresentMinute) {
    for (const int lead : LEADS) {
        for (int now = 0; now < A_DAY; ++now) {
            const int added = lead == 0 ? 0 : lead + 2;
            int expected = now + added;
            // The oddity: only one hour is carried. A minute that would need a second one stays where it is.
            if (now % 60 + added >= 120) expected = now + 60;
            begin_schedule(now, lead);
            ASSERT_EQ(shown(), expected) << now << " with " << lead;
        }
    }
}

TEST_F(ScheduleArithmetic, AScheduleMayBeSentOnceItLiesTheLeadAhead) {
    // The last minutes of an hour, of the morning and of the day, and those around them.
    for (const int now :
         {0, 1, 59, 60, 10 * 60 + 29, 10 * 60 + 30, 11 * 60 + 59, 22 * 60 + 31, 23 * 60 + 30, 23 * 60 + 59}) {
        for (const int lead : LEADS) {
            save_setting(u"SET", u"P_TIME", platform::decimal(lead));
            form.Option2.set_chosen(true);
            for (const int seconds : {0, 1}) {
                clock.set(at(now, seconds));
                for (int scheduled = now - 100; scheduled <= now + 2 * 60; ++scheduled) {
                    if (scheduled < 0) continue;
                    const int ahead = scheduled - now - (seconds > 0 ? 1 : 0);
                    // The oddities: any later day will do; 60 minutes count as 100, so that a lead of 90 is
                    // reached by them; and without a lead nothing is asked, not even that it lies ahead.
                    const bool later_day = scheduled >= A_DAY && now < A_DAY;
                    const bool enough = ahead >= lead || (lead == 90 && ahead >= 60);
                    show(scheduled);
                    ASSERT_EQ(may_send(), lead == 0 || later_day || enough)
                        << scheduled << " at " << now << ":" << seconds << " with " << lead;
                }
            }
        }
    }
}

}  // namespace
