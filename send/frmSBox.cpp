#include "send/frmSBox.h"

#include "core/windows.h"

namespace send {

frmSBox::frmSBox(platform::Platform& platform, core::AppState& state)
    : Form(platform.desktop, u"frmSBox"), state_(state) {
    set_caption(u"메시지 발송확인");
    Command1.Click.connect([this] { answer(true); });
    Command2.Click.connect([this] { answer(false); });
}

void frmSBox::Form_Load() { core::CENTER_FORM(desktop(), *this); }

void frmSBox::answer(bool start) {
    state_.gDialogConfirmed = start;
    unload();
}

}  // namespace send
