#pragma once

#include "compose/message_kinds.h"
#include "platform/controls/bars.h"
#include "platform/controls/buttons.h"
#include "platform/controls/common_dialog.h"
#include "platform/controls/displays.h"
#include "platform/controls/fields.h"
#include "platform/controls/form.h"
#include "platform/controls/panels.h"
#include "platform/controls/sound_recorder.h"
#include "platform/ports/platform.h"

#include <array>

namespace compose {

/// The most bytes of a text to be spoken, in cp949.
inline constexpr std::size_t TTS_LIMIT = 1000;

/// Where the voice of a message comes from: a text that is spoken, a recording, or a sound file.
class VoicePanel {
  public:
    /// `dialog` asks for sound files.
    VoicePanel(platform::Form& form, platform::Platform& platform, platform::CommonDialog& dialog);

    platform::Frame Frame1;
    platform::TabStrip TabStrip2;
    std::array<platform::Frame, 3> TPIC;
    platform::TextBox ttsText;
    platform::Label TTSHLen;
    platform::Label Label1_0;
    platform::SoundRecorder RFK1;
    platform::Image TTSPic;
    platform::CommandButton TTSBttn0;
    platform::Label Label1_1;
    platform::Label Label3_3;
    platform::TextBox TTSFileTxt;
    platform::CommandButton TTSBttn1;
    platform::CommandButton TTSBttn2;
    platform::CommandButton TTSBttn3;
    platform::CommandButton TTSBttn4;
    platform::Label Label1_2;

    void ttsText_Change();

    /// Rewrites a sound file's path that the user pasted as the operating system spells it.
    void translate_machine_path();

    /// Stops a recording whose panel is hidden: nobody is recorded without seeing it.
    void stop_hidden_recording();

  private:
    void fill_panels();
    void show_source();
    void refuse_excess();
    void ask_before_replacing(bool& may);
    void save_recording();
    void choose_sound_file();

    platform::Platform& platform_;
    platform::CommonDialog& dialog_;
};

/// The source that the panel shows. Only this function asks its tabs.
Content voice_source_of(const VoicePanel& panel);

}  // namespace compose
