// When a message goes, and whether its recipient may answer.

#include "compose/frmSet1.h"
#include "compose/frmXTip.h"
#include "compose/main_form.h"
#include "compose/schedule_time.h"
#include "platform/text/number.h"

#include <algorithm>

namespace compose {

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
    Command6.Click.connect([this] { Command6_Click(); });
    mnuSetup.Click.connect([this] { Command6_Click(); });
    Command4.Click.connect([this] { frmXTip(platform_).show_modal(); });
    Check2.Click.connect([this] { Combo4.set_enabled(Check2.checked()); });
}

void frmZent::show_present_time() { show_schedule({DTP1, Combo1, Combo2}, platform_.clock.now()); }

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

    double lead = saved_schedule_lead(platform_);
    // Too large a lead counts as 30 here and as 90 when the draft is checked; both stay.
    if (lead > 90) lead = 30;
    // A margin, so that the lead still holds when the message is finished.
    if (lead > 0) lead += 2;
    RESERVE_TIME_ADD(static_cast<int>(platform::round_half_even(std::max(lead, -60.0))));
}

void frmZent::Command6_Click() { frmSet1(platform_).show_modal(); }

void frmZent::RESERVE_TIME_ADD(int minutes) { add_schedule_minutes({DTP1, Combo1, Combo2}, minutes); }

}  // namespace compose
