// The way of a saved text back into the main window.

#include "saved_texts/frmMyMsgBox.h"

namespace saved_texts {

void frmMyMsgBox::Command5_Click() {
    if (platform::trim(platform::remove_all(txtText.text(), platform::CRLF)).empty()) return;
    apply_(txtText.text(), Text1.text());
    Command5.set_enabled(false);
}

void frmMyMsgBox::Command6_Click() {
    if (Command5.enabled()) Command5_Click();
    unload();
}

}  // namespace saved_texts
