#include "service/frmAbout.h"

#include "core/app_state.h"
#include "core/centring.h"
#include "core/deployment.h"
#include "core/settings.h"
#include "service/service_pages.h"

namespace service {

using platform::Text;

frmAbout::frmAbout(platform::Platform& platform) : Form(platform.desktop, u"frmAbout"), platform_(platform) {
    Command1.Click.connect([this] { unload(); });
    Label1_3.Click.connect(
        [this] { platform_.shell.open_page(page_address(platform_, core::settings::LINK_HOME)); });
}

void frmAbout::Form_Load() {
    core::CENTER_FORM(platform_.desktop, *this);
    set_caption(Text(core::APPLICATION_TITLE) + u" 정보");
    Label1_0.set_caption(Text(core::APPLICATION_TITLE));
    Label1_1.set_caption(u"버전:" + core::deployment::version());
    Command1.set_focus();
}

}  // namespace service
