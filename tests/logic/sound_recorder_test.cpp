#include "platform/controls/sound_recorder.h"

#include "platform/controls/form.h"
#include "platform/formats/loudness.h"
#include "platform/formats/wav_file.h"
#include "tests/support/memory_files.h"
#include "tests/support/scripted_desktop.h"
#include "tests/support/scripted_recorder.h"
#include "tests/support/utf8.h"

#include <gtest/gtest.h>

namespace {

using namespace platform;
using tests::utf8;
using State = SoundRecorder::State;

Samples seconds(double count, std::int16_t sample = 1000) {
    return Samples(static_cast<std::size_t>(count * SAMPLES_A_SECOND), sample);
}

struct Recording : testing::Test {
    Recording() {
        files.folders = {u"c:\\temp", u"z:\\home"};
        control.open();
    }

    void record(double count, std::int16_t sample = 1000) {
        control.record();
        machine.speak(seconds(count, sample));
        control.stop();
    }
    std::string message() const { return utf8(control.message()); }
    bool says(const std::string& words) const { return message().find(words) != std::string::npos; }
    /// Which of record, stop and play can be pressed.
    std::string buttons() const {
        return std::string(control.can_record() ? "r" : "-") + (control.can_stop() ? "s" : "-") +
               (control.can_play() ? "p" : "-");
    }

    tests::VirtualClock clock;
    tests::ScriptedDesktop desktop{clock};
    tests::MemoryFiles files;
    tests::ScriptedRecorder machine;
    struct Panel : Form {
        Panel(tests::ScriptedDesktop& desktop, tests::ScriptedRecorder& machine, Files& files)
            : Form(desktop, u"frmPanel"), control(*this, u"RFK1", machine, files) {}
        SoundRecorder control;
    } panel{desktop, machine, files};
    SoundRecorder& control = panel.control;
};

TEST_F(Recording, EnablesTheButtonsOfEachState) {
    EXPECT_EQ(buttons(), "r--");
    control.record();
    EXPECT_EQ(buttons(), "-s-");
    machine.speak(seconds(61.9));
    EXPECT_EQ(utf8(control.time()), "01:01 / 06:00");
    EXPECT_EQ(control.level(), loudness(seconds(1)));
    machine.on_its_way = seconds(0.2);
    control.stop();
    EXPECT_FALSE(machine.recording);
    EXPECT_EQ(buttons(), "r-p");
    EXPECT_EQ(utf8(control.time()), "01:02 / 06:00");
    EXPECT_EQ(control.level(), 0);

    control.play();
    EXPECT_EQ(buttons(), "-s-");
    EXPECT_EQ(machine.loudspeaker, control.recording());
    machine.play_to(3 * SAMPLES_A_SECOND);
    EXPECT_EQ(utf8(control.time()), "00:03 / 01:02");
    EXPECT_GT(control.level(), 0);
    machine.end_playing();
    EXPECT_EQ(buttons(), "r-p");

    control.play();
    EXPECT_EQ(utf8(control.time()), "00:00 / 01:02");
    control.stop();
    EXPECT_FALSE(machine.playing);
    EXPECT_EQ(buttons(), "r-p");
}

TEST_F(Recording, EndsByItselfAtSixMinutes) {
    control.record();
    machine.speak(seconds(359));
    machine.on_its_way = seconds(1);
    machine.speak(seconds(2));
    EXPECT_FALSE(machine.recording);
    EXPECT_EQ(control.recording().size(), 6 * 60 * SAMPLES_A_SECOND);
    EXPECT_EQ(utf8(control.time()), "06:00 / 06:00");
    EXPECT_TRUE(says("6분")) << message();

    control.record();
    machine.speak(seconds(359.5));
    control.stop();
    EXPECT_EQ(control.recording().size(), 6 * 60 * SAMPLES_A_SECOND) << "what was on its way is the rest";
    EXPECT_EQ(control.state(), State::idle);
}

TEST_F(Recording, ReplacesTheEarlierOneAsSoonAsSamplesArrive) {
    record(3, 1);
    control.record();
    EXPECT_EQ(utf8(control.time()), "00:00 / 06:00");
    control.stop();
    EXPECT_EQ(control.recording(), seconds(3, 1));
    machine.busy = true;
    control.record();
    EXPECT_EQ(control.state(), State::idle);
    EXPECT_TRUE(control.message_warns());
    EXPECT_EQ(control.recording(), seconds(3, 1));
    machine.busy = false;
    record(2, 2);
    EXPECT_EQ(control.recording(), seconds(2, 2));
}

TEST_F(Recording, SurvivesTheLossOfTheMicrophone) {
    control.record();
    machine.speak(seconds(2));
    machine.plug_in(false);
    machine.break_recording();
    EXPECT_EQ(buttons(), "--p");
    EXPECT_TRUE(says("끊어졌습니다") && says("남아 있습니다") && control.message_warns()) << message();
    EXPECT_EQ(control.recording(), seconds(2));
    EXPECT_FALSE(control.SaveWave(u"c:\\temp\\", u"tmp.wav"));
    machine.plug_in(true);
    EXPECT_EQ(buttons(), "r-p");
    EXPECT_FALSE(control.message_warns()) << message();
}

TEST_F(Recording, NeedsAMicrophoneThatMayComeLater) {
    machine.plug_in(false);
    EXPECT_EQ(buttons(), "---");
    EXPECT_TRUE(says("마이크를 찾을 수 없습니다") && control.message_warns()) << message();
    control.record();
    EXPECT_FALSE(machine.recording);
    machine.plug_in(true);
    EXPECT_EQ(buttons(), "r--");
    EXPECT_FALSE(control.message_warns()) << message();
}

TEST(RecordingNowhere, LoadsNoSoundBeforeItIsSeenAndSaysWhatIsMissing) {
    tests::VirtualClock clock;
    tests::ScriptedDesktop desktop{clock};
    tests::MemoryFiles files;
    tests::ScriptedRecorder machine;
    machine.installed = false;
    Recording::Panel panel(desktop, machine, files);
    EXPECT_TRUE(panel.control.SaveWave(u"c:\\temp\\", u"tmp.wav"));
    EXPECT_TRUE(panel.control.message().empty());
    panel.control.open();
    EXPECT_FALSE(panel.control.can_record());
    EXPECT_TRUE(panel.control.message_warns());
    machine.installed = true;
    panel.control.open();
    EXPECT_TRUE(panel.control.can_record());
}

TEST_F(Recording, IsSavedOrSaysWhyNot) {
    EXPECT_TRUE(control.SaveWave(u"c:\\temp\\", u"tmp.wav"));
    EXPECT_TRUE(says("녹음한 음성이 없습니다") && control.message_warns()) << message();
    EXPECT_TRUE(files.files.empty());

    control.record();
    machine.speak(seconds(2));
    machine.on_its_way = seconds(1);
    EXPECT_FALSE(control.SaveWave(u"c:\\temp\\", u"tmp.wav")) << "a recording under way ends first";
    EXPECT_EQ(files.files.at(u"c:\\temp\\tmp.wav"), wav_file(seconds(3)));
    control.play();
    EXPECT_FALSE(control.SaveWave(u"z:\\home\\", u"목소리.wav"));
    EXPECT_EQ(control.state(), State::idle);
    EXPECT_TRUE(files.files.contains(u"z:\\home\\목소리.wav"));

    files.failure = ErrorNumber::disk_full;
    EXPECT_TRUE(control.SaveWave(u"c:\\temp\\", u"tmp.wav"));
    EXPECT_TRUE(says("디스크가 꽉 찼습니다") && control.message_warns()) << message();
    EXPECT_EQ(control.recording(), seconds(3));
}

TEST(Sound, IsWrittenInTheTelephonesFormat) {
    using namespace std::string_literals;
    EXPECT_EQ(wav_file(Samples{1, -2, 32767, -32768}),
              "RIFF\x2c\0\0\0WAVEfmt \x10\0\0\0\x01\0\x01\0\x40\x1f\0\0\x80\x3e\0\0\x02\0\x10\0"s +
                  "data\x08\0\0\0\x01\0\xfe\xff\xff\x7f\x00\x80"s);
}

TEST(Sound, IsMeasuredOnTheEarsScale) {
    EXPECT_EQ(loudness({}), 0);
    EXPECT_EQ(loudness(Samples{0, 0}), 0);
    EXPECT_EQ(loudness(Samples{20, -5}), 0) << "noise";
    EXPECT_EQ(loudness(Samples{3277, -1}), 67);
    EXPECT_EQ(loudness(Samples{1, -32768}), 100);
}

}  // namespace
