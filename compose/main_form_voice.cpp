// Where the voice of a message comes from: the recording as a file of the user's, and the sound file.

#include "compose/main_form.h"
#include "core/files.h"
#include "platform/error.h"

namespace compose {

using platform::BoxAnswer;
using platform::Text;

namespace {

constexpr platform::TextView WAV_FILTER = u"Wav 파일|*.wav";

}  // namespace

void frmZent::connect_voice() {
    // A cancelled dialog ends a handler silently, and so does a failure on the way.
    TTSBttn0.Click.connect([this] { platform::ignore_errors([this] { TTSBttn0_Click(); }); });
    TTSBttn1.Click.connect([this] { platform::ignore_errors([this] { TTSBttn1_Click(); }); });
    TTSBttn2.Click.connect([this] { TTSFileTxt.set_text(u""); });
    TTSBttn3.Click.connect([this] { core::SHELL_OPEN_CHECKED(platform_, TTSFileTxt.text()); });
}

void frmZent::TTSBttn0_Click() {
    // A trial, so that nobody is asked for a name when there is nothing to save.
    const Text trial = u"tmpbk.wav";
    if (RFK1.SaveWave(Text(core::SOUND_FOLDER), trial)) return;
    core::DELETE_FILE(platform_, Text(core::SOUND_FOLDER) + trial);
    Cmd1.set_up(u"다름 이름으로 저장", Text(WAV_FILTER));
    if (choose_free_name()) {
        RFK1.SaveWave(core::PARENT_DIR(platform_, Cmd1.file_name()), core::FILE_NAME_OF(Cmd1.file_name()));
    }
}

/// Asks until the name is free or may be written over; false when the user gives up.
bool frmZent::choose_free_name() {
    while (true) {
        Cmd1.show_save();
        if (!core::FILE_EXISTS(platform_, Cmd1.file_name())) return true;
        const BoxAnswer answer = platform_.desktop.message_box(
            {.text = Cmd1.file_name() + u"\r\n\r\n이미 동일한 파일이 존재합니다. 덮어쓰시겠습니까?",
             .icon = platform::BoxIcon::exclamation,
             .buttons = platform::BoxButtons::yes_no_cancel,
             .default_answer = BoxAnswer::yes});
        if (answer != BoxAnswer::no) return answer == BoxAnswer::yes;
    }
}

void frmZent::TTSBttn1_Click() {
    platform_.desktop.set_pointer(platform::Pointer::normal);
    Cmd1.set_up(u"음성파일 선택", Text(WAV_FILTER));
    Cmd1.show_open();
    TTSFileTxt.set_text(Cmd1.file_name());
}

}  // namespace compose
