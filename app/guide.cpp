#include "app/guide.h"

#include "core/boxes.h"
#include "core/paths.h"
#include "platform/formats/shown_path.h"

#include <algorithm>
#include <utility>

namespace app {

using platform::Form;
using platform::Text;
using platform::TextView;

namespace {

/// What every message box means and what to do.
constexpr TextView PAGE_OF_BOXES = u"messages";

struct PageOfForm {
    TextView form;
    TextView page;
};
constexpr PageOfForm PAGES[] = {
    {u"frmZentLogin", u"start"},   {u"frmAutoLogin", u"start"},    {u"frmPondiraReg", u"start"},
    {u"frmPasted", u"recipients"}, {u"frmSendMan", u"cards"},      {u"frmXTip", u"voice"},
    {u"frmSet1", u"schedule"},     {u"frmMyMsgBox", u"box"},       {u"frmSBox", u"sending"},
    {u"frmZentSend", u"sending"},  {u"frmSendEndBox", u"sending"}, {u"frmWeb", u"pages"},
    {u"frmUpdate", u"update"},     {u"frmUpdateStart", u"update"}, {u"frmAbout", u"index"},
};

}  // namespace

TextView guide_page(TextView form) {
    const auto* found = std::ranges::find(PAGES, form, &PageOfForm::form);
    return found == std::end(PAGES) ? TextView() : found->page;
}

Guide::Guide(platform::Platform& platform, const compose::frmZent& main) : platform_(platform), main_(main) {}

void Guide::open_at(const Form* form) {
    const Text file = platform_.files.application_directory() + u"\\guide\\" + Text(page_of(form)) + u".html";
    if (core::FILE_EXISTS(platform_, file)) return platform_.shell.open(file);
    // Not once more for a call for help with this very box.
    if (std::exchange(tells_of_missing_page_, true)) return;
    core::warn(
        platform_.desktop,
        u"사용 설명서를 찾을 수 없습니다.\r\n프로그램을 다시 설치하면 설명서도 함께 설치됩니다.\r\n\r\n" +
            platform::shown_path(file),
        u"사용 설명서");
    tells_of_missing_page_ = false;
}

TextView Guide::page_of(const Form* form) const {
    if (form == nullptr) return PAGE_OF_BOXES;
    return form == &main_ ? kind_of(main_).guide_page : guide_page(form->name());
}

}  // namespace app
