#include "gateway/frmWeb.h"

#include "core/windows.h"

namespace gateway {

frmWeb::frmWeb(platform::Platform& platform, core::AppState& state)
    : Form(platform.desktop, u"frmWeb"), platform_(platform), state_(state) {
    Command1.Click.connect([this] { unload(); });
}

void frmWeb::Form_Load() {
    move({.width = 12000, .height = 9000});
    core::CENTER_FORM(platform_.desktop, *this);
    state_.gWebFormOpen = true;
}

void frmWeb::Form_Activate() { state_.gWebFormOpen = true; }

void frmWeb::Form_Unload() { state_.gWebFormOpen = false; }

}  // namespace gateway
