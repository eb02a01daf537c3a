// The way of a saved text back into the main window.

#include "saved_texts/frmMyMsgBox.h"

namespace saved_texts {

void frmMyMsgBox::apply_to_draft() {
    if (platform::trim(platform::remove_all(txtText.text(), platform::CRLF)).empty()) return;
    apply_(txtText.text(), Text1.text());
    Command5.set_enabled(false);
}

void frmMyMsgBox::apply_and_close() {
    if (Command5.enabled()) apply_to_draft();
    unload();
}

}  // namespace saved_texts
