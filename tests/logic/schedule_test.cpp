#include "compose/frmSet1.h"
#include "tests/support/main_window.h"

#include <gtest/gtest.h>
#include <string>

namespace {

using platform::make_time;
using platform::Text;
using tests::utf8;

struct Schedule : testing::Test, tests::MainWindow {
    void SetUp() override { form.load(); }

    /// The schedule as the user sees it.
    std::string shown() const {
        const auto date = platform::break_up(form.schedule.DTP1.value());
        return std::to_string(date.month) + "/" + std::to_string(date.day) + " " +
               utf8(form.schedule.Combo1.text()) + ":" + utf8(form.schedule.Combo2.text());
    }
};

TEST_F(Schedule, AddingMinutesCarriesOneHourAndOneDayAndNoMore) {
    const struct {
        int month, day, hour, minute, added;
        const char* shown;
    } rows[] = {
        {11, 23, 10, 0, 59, "11/23 10:59"},
        {11, 23, 10, 1, 59, "11/23 11:00"},
        {11, 23, 10, 59, 60, "11/23 11:59"},
        {11, 23, 23, 59, 1, "11/24 00:00"},
        {11, 30, 23, 59, 32, "12/1 00:31"},
        {12, 31, 23, 30, 30, "1/1 00:00"},
        {11, 23, 10, 10, -10, "11/23 10:00"},
        {11, 23, 10, 0, 119, "11/23 11:59"},
        // Beyond the last row the minute stays while the hour moves on, so an hour is lost.
        {11, 23, 12, 40, 92, "11/23 13:40"},
        {11, 23, 10, 0, 120, "11/23 11:00"},
        {11, 23, 10, 5, -10, "11/23 10:05"},
    };
    for (const auto& row : rows) {
        form.schedule.DTP1.set_value(make_time(2026, row.month, row.day));
        form.schedule.Combo1.set_list_index(row.hour);
        form.schedule.Combo2.set_list_index(row.minute);
        form.schedule.RESERVE_TIME_ADD(row.added);
        EXPECT_EQ(shown(), row.shown) << row.hour << ":" << row.minute << " + " << row.added;
    }
}

TEST_F(Schedule, AScheduleStartsAtTheSavedLeadPlusTwoMinutes) {
    const struct {
        const char16_t* lead;
        int hour, minute;
        const char* shown;
    } rows[] = {
        {u"", 10, 0, "11/23 10:32"},
        {u"30", 23, 59, "11/24 00:31"},
        {u"0", 10, 7, "11/23 10:07"},
        {u"abc", 10, 7, "11/23 10:07"},
        {u"90", 12, 0, "11/23 13:32"},
        {u"90", 12, 40, "11/23 13:40"},
        {u"120", 10, 0, "11/23 10:32"},
        {u"99999999999999999999", 10, 0, "11/23 10:32"},
        {u"-4294967286", 10, 7, "11/23 10:07"},
    };
    for (const auto& row : rows) {
        save_setting(u"SET", u"P_TIME", row.lead);
        form.schedule.Option1.set_chosen(true);
        clock.set(make_time(2026, 11, 23, row.hour, row.minute, 59));
        form.schedule.Combo1.set_list_index(3);
        form.schedule.DTP1.set_value(make_time(2030, 1, 1));
        form.schedule.Option2.set_chosen(true);
        EXPECT_EQ(shown(), row.shown) << utf8(row.lead);
    }
}

TEST_F(Schedule, TheLeadIsChosenByRowAndSavedInMinutes) {
    const struct {
        const char16_t* saved;
        int row;
    } rows[] = {{u"", 2}, {u"0", 0}, {u"6", 6}, {u"7", 2}, {u"-1", 2}, {u"99999999999", 2}, {u"abc", 0}};
    for (const auto& row : rows) {
        save_setting(u"SET", u"P_TIME_SET", row.saved);
        desktop.in_form<compose::frmSet1>(u"frmSet1", [&](compose::frmSet1& settings) {
            EXPECT_EQ(settings.Combo1.list_index(), row.row) << utf8(row.saved);
            settings.escape_pressed();
        });
        form.mnuSetup.Click.raise();
        EXPECT_EQ(setting(u"SET", u"P_TIME_SET"), utf8(row.saved));
    }

    form.schedule.Option2.set_chosen(true);
    const std::string before = shown();
    for (const bool saved : {true, false}) {
        desktop.in_form<compose::frmSet1>(u"frmSet1", [&](compose::frmSet1& settings) {
            settings.Combo1.set_list_index(saved ? 6 : 1);
            (saved ? settings.Command1 : settings.Command2).Click.raise();
        });
        form.schedule.Command6.Click.raise();
        EXPECT_EQ(setting(u"SET", u"P_TIME_SET") + " " + setting(u"SET", u"P_TIME"), "6 90");
    }
    EXPECT_EQ(shown(), before) << "the lead counts from the next schedule";
}

}  // namespace
