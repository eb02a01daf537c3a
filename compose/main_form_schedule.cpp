// When a message goes, and whether its recipient may answer.

#include "compose/main_form.h"
#include "core/ini_file.h"
#include "platform/error.h"
#include "platform/text/number.h"

#include <algorithm>

namespace compose {

using platform::Text;

void frmZent::connect_schedule() {
    Option1.set_chosen(true);
    DTP1.set_enabled(false);
    Combo1.set_enabled(false);
    Combo2.set_enabled(false);
    Command6.hide();
    // The shortcut list has never been shown; its rows and its handler are there all the same.
    Combo6.hide();
    for (const int minutes : {1, 2, 3, 4, 5, 10, 20, 30, 60}) {
        Combo6.add_row(platform::decimal(minutes) + u"분후", minutes);
    }
    show_reply_controls(false);
    Combo4.set_enabled(false);

    Option1.Click.connect([this] { Option1_Click(); });
    Option2.Click.connect([this] { Option2_Click(); });
    Combo6.Click.connect([this] {
        if (Combo6.visible()) RESERVE_TIME_ADD(Combo6.item_data(Combo6.list_index()));
    });
    Check2.Click.connect([this] { Combo4.set_enabled(Check2.checked()); });
}

void frmZent::show_present_time() {
    const platform::LocalTime now = platform_.clock.now();
    DTP1.set_value(platform::date_part(now));
    Combo1.set_list_index(platform::break_up(now).hour);
    Combo2.set_list_index(platform::break_up(now).minute);
}

void frmZent::Option1_Click() {
    Option2.set_chosen(false);
    DTP1.set_enabled(false);
    Combo1.set_enabled(false);
    Combo2.set_enabled(false);
    Combo6.hide();
    Command6.hide();
}

void frmZent::Option2_Click() {
    Option1.set_chosen(false);
    DTP1.set_enabled(true);
    Combo1.set_enabled(true);
    Combo2.set_enabled(true);
    Command6.show();
    show_present_time();

    const Text saved = core::INI_READ(platform_, core::application_ini(platform_), u"SET", u"P_TIME");
    double lead = platform::leading_number(saved.empty() ? u"30" : saved);
    // Too large a lead counts as 30 here and as 90 when the draft is checked; both stay.
    if (lead > 90) lead = 30;
    // A margin, so that the lead still holds when the message is finished.
    if (lead > 0) lead += 2;
    RESERVE_TIME_ADD(static_cast<int>(platform::round_half_even(std::max(lead, -60.0))));
}

/// Only one hour's carry is made: with more than an hour to add late in an hour, the minute has no row to go
/// to and stays while the hour has moved. Schedules have always come out so.
void frmZent::RESERVE_TIME_ADD(int minutes) {
    const int minute = Combo2.list_index() + minutes;
    if (minute < 60) {
        platform::ignore_errors([&] { Combo2.set_list_index(minute); });
        return;
    }
    platform::ignore_errors([&] { Combo2.set_list_index(minute - 60); });
    const int hour = Combo1.list_index() + 1;
    if (hour < 24) {
        platform::ignore_errors([&] { Combo1.set_list_index(hour); });
        return;
    }
    DTP1.set_value(platform::add_days(DTP1.value(), 1));
    platform::ignore_errors([&] { Combo1.set_list_index(hour - 24); });
}

}  // namespace compose
