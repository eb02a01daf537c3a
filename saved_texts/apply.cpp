// The way of a saved text back into the main window.

#include "core/boxes.h"
#include "core/byte_length.h"
#include "saved_texts/frmMyMsgBox.h"

namespace saved_texts {

using platform::Text;

void frmMyMsgBox::apply_to_draft() {
    if (platform::trim(platform::remove_all(txtText.text(), platform::CRLF)).empty()) return;
    const bool has_sender = !platform::trim(main_.txtUserName.text()).empty();
    const Text text = (has_sender ? main_.sender_tag() : Text()) + platform::right_trim(txtText.text());
    if (main_.Frame1[0].visible()) apply_to_text_message(text);
    // Deliberately in every kind, and in the others the title alone: there it is the job's subject.
    main_.subjectText.set_tag(u"END");
    main_.subjectText.set_text(Text1.text());
    Command5.set_enabled(false);
}

void frmMyMsgBox::apply_to_text_message(Text text) {
    if (core::BYTE_LEN(text) > compose::TEXT_LIMIT) {
        if (core::ask(platform_.desktop,
                      u"[장문메시지 알림] 80Byte이상 입력하시겠습니까?\r\n\r\n[확인]을 하시면 입력된 전체 "
                      u"메시지를 80Byte씩 나누어서 전송하게 됩니다.",
                      u"장문메시지 확인", platform::BoxIcon::question)) {
            main_.mText1.set_tag(u"LONG");
        } else {
            core::warn(platform_.desktop,
                       u"입력하신 문자가 80Byte를 넘었습니다.\r\n한 번에 80Byte까지만 전송이 가능합니다.",
                       u"입력 초과");
            text = core::LLL(text, compose::TEXT_LIMIT);
        }
    }
    main_.mText1.set_text(text);
    // The answer held for this text; the user's next edit of it is asked about anew.
    main_.mText1.set_tag(u"");
}

void frmMyMsgBox::apply_and_close() {
    if (Command5.enabled()) apply_to_draft();
    unload();
}

}  // namespace saved_texts
