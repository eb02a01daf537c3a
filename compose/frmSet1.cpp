#include "compose/frmSet1.h"

#include "core/ini_file.h"
#include "core/windows.h"
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
    const Text saved = core::INI_READ(platform_, core::application_ini(platform_), u"SET", u"P_TIME_SET");
    const double row = saved.empty() ? DEFAULT_ROW : platform::leading_number(saved);
    const bool is_row = row >= 0 && row < static_cast<double>(Combo1.rows().size());
    Combo1.set_list_index(is_row ? static_cast<int>(row) : DEFAULT_ROW);
}

void frmSet1::Command1_Click() {
    const Text ini = core::application_ini(platform_);
    core::INI_WRITE(platform_, ini, u"SET", u"P_TIME_SET", platform::decimal(Combo1.list_index()));
    core::INI_WRITE(platform_, ini, u"SET", u"P_TIME",
                    platform::decimal(Combo1.item_data(Combo1.list_index())));
    unload();
}

}  // namespace compose
