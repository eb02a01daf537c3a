#include "compose/frmXTip.h"

#include "core/centring.h"

namespace compose {

frmXTip::frmXTip(platform::Platform& platform) : Form(platform.desktop, u"frmXTip"), platform_(platform) {
    set_caption(u"답변받기 보충설명");
    Label1_0.set_caption(
        u"전달된 음성을 듣고 수신자가 원하는 번호를 눌러 답변하면, 발송결과 조회에서 답변결과를 실시간으로 "
        u"확인할 수 있는 기능입니다.");
}

void frmXTip::Form_Load() {
    Image1.set_picture(platform_.files.application_directory() + u"\\resource\\xtip1.gif");
    fit_contents();
    core::CENTER_FORM(platform_.desktop, *this);
}

}  // namespace compose
