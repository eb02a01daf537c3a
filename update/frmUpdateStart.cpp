#include "update/frmUpdateStart.h"

#include "core/centring.h"
#include "core/paths.h"
#include "platform/error.h"
#include "platform/text/cp949.h"

namespace update {

using platform::Text;

frmUpdateStart::frmUpdateStart(platform::Platform& platform, core::AppState& state)
    : Form(platform.desktop, u"frmUpdateStart"), platform_(platform), state_(state) {
    set_caption(u"프로그램이 업데이트 되었습니다.");
    RichTextBox1.set_text(u"[UPDATE]\r\nAUTORUN=OK\r\n");
    RichTextBox1.set_tag(u"\\i_autorun.ini");
    Command1.Click.connect([this] { start_update(); });
    Command2.Click.connect([this] { put_off(); });
}

void frmUpdateStart::Form_Load() {
    core::CENTER_FORM(platform_.desktop, *this);
    WebBrowser.Navigate(state_.update.gUpdateNoteFile, {}, {});
}

/// Without a yes the installer must find no note, not even an old one, however the form was closed.
void frmUpdateStart::Form_Unload() {
    if (state_.forms.gDialogConfirmed) return;
    platform::ignore_errors([this] { core::DELETE_FILE(platform_, note_path()); });
}

void frmUpdateStart::start_update() {
    state_.forms.gDialogConfirmed = true;
    // The update goes on without the note when it cannot be written.
    platform::ignore_errors(
        [this] { platform_.files.write(note_path(), platform::encode_cp949(RichTextBox1.text())); });
    unload();
}

void frmUpdateStart::put_off() {
    state_.forms.gDialogConfirmed = false;
    unload();
}

Text frmUpdateStart::note_path() const {
    return platform_.files.application_directory() + RichTextBox1.tag();
}

}  // namespace update
