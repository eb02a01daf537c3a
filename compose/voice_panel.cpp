#include "compose/voice_panel.h"

#include "core/boxes.h"
#include "core/byte_length.h"
#include "core/paths.h"
#include "core/work_folders.h"
#include "platform/error.h"
#include "platform/formats/pasted_path.h"

namespace compose {

using platform::Text;

namespace {

constexpr platform::TextView WAV_FILTER = u"Wav 파일|*.wav";

}  // namespace

VoicePanel::VoicePanel(platform::Form& form, platform::Platform& platform, platform::CommonDialog& dialog)
    : Room(form),
      Label1_0(form_, u"Label1_0",
               u"* TTS-입력하신 문자를 음성으로 변환하여 전달해 드립니다.\r\n"
               u"* 내용을 입력하세요.(최대 1,000Byte까지 가능합니다.)"),
      RFK1(form_, u"RFK1", platform.recorder, platform.files),
      Label1_1(form_, u"Label1_1",
               u"* 빨간색 녹음버튼을 누르고 녹음하세요.(최대6분)\r\n"
               u"* 녹음이 끝나면 정지버튼을 누르세요.\r\n"
               u"* 재생버튼을 누르고 녹음한 음성을 확인하세요.\r\n"
               u"* 보내기버튼을 누르시면 메시지가 전송됩니다."),
      Label1_2(form_, u"Label1_2",
               u"* 전화기로 녹음한 파일을 첨부하는 기능입니다.\r\n"
               u"* 우측 하단에 있는 폰디라통신 번호(0303-0XXX-XXXX)로 전화를 걸어 1번을 누른 후, 음성녹음을 "
               u"하고 전송을 하세요.\r\n"
               u"* 우측 상단의 [수신하기] 버튼을 눌러 녹음된 파일을 자신의 PC에 다운 받으신후 그 파일을 "
               u"첨부하면 됩니다.\r\n"
               u"* 안내문: 첨부될 음성파일은 iPondira의 '마이크 녹음' 이나, 0303 번호로 녹음한 안내문구를 "
               u"추가하여 수신된 파일만 가능합니다."),
      platform_(platform),
      dialog_(dialog) {
    put_into(Frame1, {&TabStrip2, &TPIC[0], &TPIC[1], &TPIC[2]});
    put_into(TPIC[0], {&ttsText});
    put_into(TPIC[1], {&RFK1, &TTSBttn0});
    put_into(TPIC[2], {&TTSFileTxt, &TTSBttn1, &TTSBttn2, &TTSBttn3, &TTSBttn4});
    // The button has no action and never had one; the text above it gives the guidance.
    TTSBttn4.set_enabled(false);

    TabStrip2.Click.connect([this] {
        show_source();
        if (!TabStrip2.has_focus()) focus_source();
    });
    ttsText.Change.connect([this] { ttsText_Change(); });
    ttsText.KeyPress.connect([this](platform::KeyPressed& key) {
        if (key.code == platform::KEY_BACKSPACE || core::BYTE_LEN(ttsText.text()) <= TTS_LIMIT) return;
        refuse_excess();
        ttsText.set_focus();
    });
    RFK1.Replacing.connect([this](bool& may) { ask_before_replacing(may); });
    // A cancelled dialog ends a handler silently, and so does a failure on the way.
    TTSBttn0.Click.connect([this] { platform::ignore_errors([this] { save_recording(); }); });
    TTSBttn1.Click.connect([this] { platform::ignore_errors([this] { choose_sound_file(); }); });
    Frame1.Drop.connect([this](const platform::Dropped& dropped) { take_dropped(dropped); });
    TTSBttn2.Click.connect([this] { TTSFileTxt.set_text(u""); });
    TTSBttn3.Click.connect([this] {
        translate_machine_path();
        core::SHELL_OPEN_CHECKED(platform_, TTSFileTxt.text());
    });
    show_source();
}

void VoicePanel::show_source() {
    for (platform::Frame& panel : TPIC) panel.hide();
    TPIC[static_cast<std::size_t>(TabStrip2.selected() - 1)].show();
    stop_hidden_recording();
}

void VoicePanel::focus_source() {
    switch (voice_source_of(*this)) {
        case Content::speech:
            return ttsText.set_focus();
        case Content::recording:
            return RFK1.set_focus();
        default:
            return TTSBttn1.set_focus();
    }
}

Content voice_source_of(const VoicePanel& panel) {
    constexpr std::array SOURCES = {Content::speech, Content::recording, Content::sound_file};
    return SOURCES[static_cast<std::size_t>(panel.TabStrip2.selected() - 1)];
}

void VoicePanel::ttsText_Change() {
    if (core::BYTE_LEN(ttsText.text()) > TTS_LIMIT) {
        const std::size_t caret = ttsText.selection_start();
        refuse_excess();
        ttsText.select(caret, 0);
    }
    TTSHLen.set_caption(platform::decimal(core::BYTE_LEN(ttsText.text())) + u"/1000Byte");
    gauge.show(ttsText.text(), TTS_LIMIT);
}

void VoicePanel::refuse_excess() {
    core::warn(platform_.desktop,
               u"입력하신 문자가 1000Byte를 넘었습니다.\r\n한 번에 1000Byte까지만 전송이 가능합니다.",
               u"입력 초과");
    Text text = ttsText.text();
    ttsText.set_text(core::LLL(text, TTS_LIMIT));
}

void VoicePanel::ask_before_replacing(bool& may) {
    may = core::ask(platform_.desktop,
                    u"저장하거나 보내지 않은 녹음이 있습니다. 새로 녹음하면 지워집니다.\r\n\r\n새로 "
                    u"녹음하시겠습니까?",
                    {}, platform::BoxIcon::question, platform::BoxAnswer::no);
}

void VoicePanel::stop_hidden_recording() {
    if (!RFK1.on_screen()) RFK1.stop();
}

void VoicePanel::save_recording() {
    // A trial, so that the user is not asked for a name when there is nothing to save.
    const Text trial = u"tmpbk.wav";
    if (RFK1.SaveWave(Text(core::SOUND_FOLDER), trial)) return;
    core::DELETE_FILE(platform_, Text(core::SOUND_FOLDER) + trial);
    dialog_.set_up(u"다름 이름으로 저장", Text(WAV_FILTER));
    if (!dialog_.choose_free_name(platform_.files)) return;
    const Text& path = dialog_.file_name();
    if (!RFK1.SaveWave(core::PARENT_DIR(platform_, path), core::FILE_NAME_OF(path))) RFK1.set_kept();
}

void VoicePanel::translate_machine_path() {
    const Text path = platform::pasted_path(TTSFileTxt.text());
    const bool of_machine = path.starts_with(u'/');
    TTSFileTxt.set_text(of_machine ? platform_.files.path_of(platform::to_utf8(path)) : path);
}

void VoicePanel::choose_sound_file() {
    platform_.desktop.set_pointer(platform::Pointer::normal);
    dialog_.set_up(u"음성파일 선택", Text(WAV_FILTER));
    dialog_.show_open();
    TTSFileTxt.set_text(dialog_.file_name());
}

void VoicePanel::take_dropped(const platform::Dropped& dropped) {
    if (dropped.files.size() != 1 || !platform::lower_case(dropped.files.front()).ends_with(u".wav"))
        return core::warn(platform_.desktop, u"첨부할 WAV파일을 선택하여 주십시오.");
    TabStrip2.select(3);
    TTSFileTxt.set_text(dropped.files.front());
}

}  // namespace compose
