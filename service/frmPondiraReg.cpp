#include "service/frmPondiraReg.h"

#include "core/centring.h"
#include "core/deployment.h"

#include <array>

namespace service {

namespace {

constexpr std::array<platform::TextView, 3> DOCUMENTS = {u"Pondira.doc", u"Pondira.hwp", u"Pondira.pdf"};

}  // namespace

frmPondiraReg::frmPondiraReg(platform::Platform& platform)
    : Form(platform.desktop, u"frmPondiraReg"), platform_(platform) {
    set_caption(u"폰디라-프로(인사이드) 신규회원 가입");
    Label1.set_caption(
        u"매월 2,000원의 기본료가 부과되며, 매월 기본료만큼 무료로 메시지를 발송 하실 수 있습니다. "
        u"(문자메시지 80건 수준) 단, 가입 첫달은 기본료없이 메시지 발송요금만 청구됩니다.");
    Label2.set_caption(
        u"아래의 [가입신청서 다운받기] 단추를 눌러 가입신청서를 다운 받으신 후 신청서 내용을 작성하여 팩스로 "
        u"보내주시기 바랍니다.");
    Label3.set_caption(core::deployment::contact_phone());
    Label6.set_caption(core::deployment::contact_fax());

    Command1.Click.connect([this] { platform_.desktop.popup_menu_below(*this, mnuDownLoad, Command1); });
    Command2.Click.connect([this] { unload(); });
    mnuDoc_0.Click.connect([this] { download_doc(0); });
    mnuDoc_1.Click.connect([this] { download_doc(1); });
    mnuDoc_2.Click.connect([this] { download_doc(2); });
}

void frmPondiraReg::Form_Load() { core::CENTER_FORM(platform_.desktop, *this); }

void frmPondiraReg::download_doc(int index) {
    if (index < 0 || static_cast<std::size_t>(index) >= DOCUMENTS.size()) return;
    platform_.shell.open_page(core::deployment::documents_site() + u"/" +
                              platform::Text(DOCUMENTS[static_cast<std::size_t>(index)]));
}

}  // namespace service
