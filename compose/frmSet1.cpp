#include "compose/frmSet1.h"

#include "core/centring.h"
#include "core/settings.h"
#include "platform/text/number.h"

namespace compose {

using platform::Text;

namespace {

/// "30 minutes ahead", the default.
constexpr int DEFAULT_ROW = 2;

}  // namespace

frmSet1::frmSet1(platform::Platform& platform) : Form(platform.desktop, u"frmSet1"), platform_(platform) {
    set_caption(u"설정");
    Combo1.add_row(u"사용안함", 0);
    for (const int minutes : {20, 30, 40, 50, 60, 90}) {
        Combo1.add_row(platform::decimal(minutes) + u"분 후부터", minutes);
    }
    Command1.Click.connect([this] { Command1_Click(); });
    Command2.Click.connect([this] { unload(); });
}

void frmSet1::Form_Load() {
    core::CENTER_FORM(platform_.desktop, *this);
    const Text saved = core::read_setting(platform_, core::settings::SCHEDULE_LEAD_ROW);
    const double row = platform::leading_number(saved);
    const bool is_row = row >= 0 && row < static_cast<double>(Combo1.rows().size());
    Combo1.set_list_index(is_row ? static_cast<int>(row) : DEFAULT_ROW);
}

void frmSet1::Command1_Click() {
    core::write_setting(platform_, core::settings::SCHEDULE_LEAD_ROW, platform::decimal(Combo1.list_index()));
    core::write_setting(platform_, core::settings::SCHEDULE_LEAD,
                        platform::decimal(Combo1.item_data(Combo1.list_index())));
    unload();
}

}  // namespace compose
