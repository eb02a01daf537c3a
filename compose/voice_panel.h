#pragma once

#include "compose/message_kinds.h"
#include "compose/room.h"
#include "core/byte_gauge.h"
#include "platform/controls/bars.h"
#include "platform/controls/buttons.h"
#include "platform/controls/common_dialog.h"
#include "platform/controls/displays.h"
#include "platform/controls/fields.h"
#include "platform/controls/panels.h"
#include "platform/controls/sound_recorder.h"
#include "platform/ports/platform.h"

#include <array>

namespace compose {

/// The most bytes of a text to be spoken, in cp949.
inline constexpr std::size_t TTS_LIMIT = 1000;

/// Where the voice of a message comes from: a text that is spoken, a recording, or a sound file.
class VoicePanel : Room {
  public:
    /// `dialog` asks for sound files.
    VoicePanel(platform::Form& form, platform::Platform& platform, platform::CommonDialog& dialog);

    platform::Frame Frame1{form_, u"Frame1_1"};
    platform::TabStrip TabStrip2{form_, u"TabStrip2", {u"TTS", u"마이크녹음", u"파일첨부"}};
    std::array<platform::Frame, 3> TPIC{platform::Frame{form_, u"TPIC_0"}, platform::Frame{form_, u"TPIC_1"},
                                        platform::Frame{form_, u"TPIC_2"}};
    platform::TextBox ttsText{form_, u"ttsText"};
    platform::Label TTSHLen{form_, u"TTSHLen", u"0/1000Byte"};
    core::ByteGauge gauge{form_, u"TTSFill", u"TTSNote"};
    platform::Label Label1_0;
    platform::SoundRecorder RFK1;
    platform::Image TTSPic{form_, u"TTSPic"};
    platform::CommandButton TTSBttn0{form_, u"TTSBttn0", u"파일로 저장..."};
    platform::Label Label1_1;
    platform::Label Label3_3{form_, u"Label3_3", u"음성파일:"};
    platform::TextBox TTSFileTxt{form_, u"TTSFileTxt"};
    platform::CommandButton TTSBttn1{form_, u"TTSBttn1", u"찾아보기..."};
    platform::CommandButton TTSBttn2{form_, u"TTSBttn2", u"삭제"};
    platform::CommandButton TTSBttn3{form_, u"TTSBttn3", u"미리듣기"};
    platform::CommandButton TTSBttn4{form_, u"TTSBttn4", u"안내문"};
    platform::Label Label1_2;

    void ttsText_Change();

    /// Gives the focus to what makes the voice: the text, the recorder, or the button that chooses a file.
    void focus_source();

    /// Rewrites a sound file's path that the user pasted as the operating system spells it.
    void translate_machine_path();

    /// Stops a recording whose panel is hidden: nobody is recorded without seeing it.
    void stop_hidden_recording();

  private:
    void show_source();
    void refuse_excess();
    void ask_before_replacing(bool& may);
    void save_recording();
    void choose_sound_file();
    void take_dropped(const platform::Dropped& dropped);

    platform::Platform& platform_;
    platform::CommonDialog& dialog_;
};

/// The source that the panel shows. Everything that depends on the source asks this function.
Content voice_source_of(const VoicePanel& panel);

}  // namespace compose
