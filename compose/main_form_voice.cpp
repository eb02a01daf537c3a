// Where the voice of a message comes from: the recording as a file of the user's, and the sound file.

#include "compose/main_form.h"
#include "core/paths.h"
#include "core/work_folders.h"
#include "platform/error.h"

namespace compose {

using platform::Text;

namespace {

constexpr platform::TextView WAV_FILTER = u"Wav 파일|*.wav";

}  // namespace

void frmZent::connect_voice() {
    // A cancelled dialog ends a handler silently, and so does a failure on the way.
    TTSBttn0.Click.connect([this] { platform::ignore_errors([this] { TTSBttn0_Click(); }); });
    RFK1.Replacing.connect([this](bool& may) { RFK1_Replacing(may); });
    TTSBttn1.Click.connect([this] { platform::ignore_errors([this] { TTSBttn1_Click(); }); });
    TTSBttn2.Click.connect([this] { TTSFileTxt.set_text(u""); });
    TTSBttn3.Click.connect([this] {
        take_machine_path();
        core::SHELL_OPEN_CHECKED(platform_, TTSFileTxt.text());
    });
}

void frmZent::RFK1_Replacing(bool& may) {
    may = platform_.desktop.message_box({.text = u"저장하거나 보내지 않은 녹음이 있습니다. 새로 녹음하면 "
                                                 u"지워집니다.\r\n\r\n새로 녹음하시겠습니까?",
                                         .icon = platform::BoxIcon::question,
                                         .buttons = platform::BoxButtons::yes_no,
                                         .default_answer = platform::BoxAnswer::no}) ==
          platform::BoxAnswer::yes;
}

/// Nobody is recorded who does not see it.
void frmZent::stop_hidden_recording() {
    if (!RFK1.on_screen()) RFK1.stop();
}

void frmZent::TTSBttn0_Click() {
    // A trial, so that nobody is asked for a name when there is nothing to save.
    const Text trial = u"tmpbk.wav";
    if (RFK1.SaveWave(Text(core::SOUND_FOLDER), trial)) return;
    core::DELETE_FILE(platform_, Text(core::SOUND_FOLDER) + trial);
    Cmd1.set_up(u"다름 이름으로 저장", Text(WAV_FILTER));
    if (!Cmd1.choose_free_name(platform_.files)) return;
    const bool failed =
        RFK1.SaveWave(core::PARENT_DIR(platform_, Cmd1.file_name()), core::FILE_NAME_OF(Cmd1.file_name()));
    if (!failed) RFK1.set_kept();
}

void frmZent::take_machine_path() {
    if (const Text path = platform::trim(TTSFileTxt.text()); path.starts_with(u'/'))
        TTSFileTxt.set_text(platform_.files.path_of(platform::to_utf8(path)));
}

void frmZent::TTSBttn1_Click() {
    platform_.desktop.set_pointer(platform::Pointer::normal);
    Cmd1.set_up(u"음성파일 선택", Text(WAV_FILTER));
    Cmd1.show_open();
    TTSFileTxt.set_text(Cmd1.file_name());
}

}  // namespace compose
