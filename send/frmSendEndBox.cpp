#include "send/frmSendEndBox.h"

#include "core/windows.h"
#include "service/service_pages.h"

namespace send {

frmSendEndBox::frmSendEndBox(platform::Platform& platform, compose::frmZent& main_form)
    : Form(platform.desktop, u"frmSendEndBox"), main_form_(main_form) {
    set_caption(u"KT 폰디라 서버에 메시지 등록완료...");
    Command1.set_enabled(false);
    Command1.Click.connect([this] { main_form_.session.KTSMS_LINK(service::PAGE_RESULTS); });
    Command2.Click.connect([this] { unload(); });
}

void frmSendEndBox::Form_Load() { core::CENTER_FORM(desktop(), *this); }

}  // namespace send
