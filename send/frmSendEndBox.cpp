#include "send/frmSendEndBox.h"

#include "core/windows.h"

namespace send {

frmSendEndBox::frmSendEndBox(platform::Platform& platform, const gateway::ServiceDoors& doors)
    : Form(platform.desktop, u"frmSendEndBox"), doors_(doors) {
    set_caption(u"KT 폰디라 서버에 메시지 등록완료...");
    Command1.set_enabled(false);
    Command1.Click.connect([this] { doors_.KTSMS_LINK(gateway::PAGE_RESULTS); });
    Command2.Click.connect([this] { unload(); });
}

void frmSendEndBox::Form_Load() { core::CENTER_FORM(desktop(), *this); }

}  // namespace send
