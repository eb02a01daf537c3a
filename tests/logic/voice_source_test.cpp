#include "platform/formats/wav_file.h"
#include "tests/support/sending.h"

#include <gtest/gtest.h>

namespace {

using namespace platform;
using tests::Sending;
using tests::utf8;

const Text SAVE_TITLE = u"다름 이름으로 저장";
const Text OPEN_TITLE = u"음성파일 선택";
const Text TRIAL = u"c:\\temp\\tmpbk.wav";
const Text NAME = u"z:\\home\\인사.wav";
const MessageBox OVERWRITE = tests::overwrite_question(NAME);

/// The main window's tabs for a voice, with something recorded.
struct VoiceSource : testing::Test, Sending {
    VoiceSource() {
        record(said);
        files.files[NAME] = "old";
    }

    void save() { form.voice.TTSBttn0.Click.raise(); }

    const Samples said = Samples(10, 1);
    const std::string wav = wav_file(said);
};

TEST_F(VoiceSource, ARecordingIsSavedOnTrialBeforeTheUserIsAskedForAName) {
    Sending nothing_recorded;
    nothing_recorded.form.voice.TTSBttn0.Click.raise();
    EXPECT_TRUE(nothing_recorded.desktop.file_questions.empty());
    files.failure = ErrorNumber::permission_denied;
    save();
    EXPECT_TRUE(desktop.file_questions.empty()) << "nothing can be written";
}

TEST_F(VoiceSource, ARecordingIsSavedWhereTheUserWantsItAndTheTrialIsRemoved) {
    desktop.expect_file_dialog(SAVE_TITLE, u"z:\\home\\새 녹음.wav");
    save();
    EXPECT_EQ(files.files[u"z:\\home\\새 녹음.wav"], wav);
    EXPECT_FALSE(files.files.contains(TRIAL));
    EXPECT_EQ(desktop.file_questions[0].purpose, FileQuestion::Purpose::save);
    EXPECT_EQ(utf8(desktop.file_questions[0].filter), "Wav 파일|*.wav");
}

TEST_F(VoiceSource, ATakenNameIsAskedForAgainUntilTheUserDecides) {
    desktop.expect_file_dialog(SAVE_TITLE, NAME);
    desktop.expect_box(OVERWRITE, BoxAnswer::no);
    desktop.expect_file_dialog(SAVE_TITLE, NAME);
    desktop.expect_box(OVERWRITE, BoxAnswer::yes);
    save();
    EXPECT_EQ(files.files[NAME], wav);
    EXPECT_EQ(desktop.file_questions[0].file_name, u"");
    EXPECT_EQ(desktop.file_questions[1].file_name, NAME) << "the second dialog is not set up anew";
}

TEST_F(VoiceSource, ACancelledDialogSavesNothing) {
    const auto before = files.files;
    desktop.expect_file_dialog(SAVE_TITLE, std::nullopt);
    save();
    desktop.expect_file_dialog(SAVE_TITLE, NAME);
    desktop.expect_box(OVERWRITE, BoxAnswer::cancel);
    save();
    desktop.expect_file_dialog(SAVE_TITLE, NAME);
    desktop.expect_box(OVERWRITE, BoxAnswer::no);
    desktop.expect_file_dialog(SAVE_TITLE, std::nullopt);
    save();
    EXPECT_EQ(files.files, before);
}

TEST_F(VoiceSource, ASoundFileIsTakenUnchangedAndTheDialogStartsEmpty) {
    desktop.pointer = Pointer::hourglass;
    desktop.expect_file_dialog(OPEN_TITLE, u"z:\\글.txt");
    form.voice.TTSBttn1.Click.raise();
    EXPECT_EQ(form.voice.TTSFileTxt.text(), u"z:\\글.txt");
    EXPECT_EQ(desktop.pointer, Pointer::normal);
    desktop.expect_file_dialog(OPEN_TITLE, std::nullopt);
    form.voice.TTSBttn1.Click.raise();
    EXPECT_EQ(form.voice.TTSFileTxt.text(), u"z:\\글.txt");
    EXPECT_EQ(desktop.file_questions[1].file_name, u"");
    EXPECT_EQ(desktop.file_questions[1].purpose, FileQuestion::Purpose::open);
    form.voice.TTSBttn2.Click.raise();
    EXPECT_EQ(form.voice.TTSFileTxt.text(), u"");
}

TEST_F(VoiceSource, ASoundFileIsPlayedByTheMachineAndAMissingOneIsNamed) {
    form.voice.TTSBttn3.Click.raise();
    form.voice.TTSFileTxt.set_text(NAME);
    form.voice.TTSBttn3.Click.raise();
    EXPECT_EQ(shell.opened, std::vector{NAME});
    files.files.clear();
    desktop.expect_box(tests::critical(NAME + u"\r\n\r\n파일을 찾을 수 없습니다!"));
    form.voice.TTSBttn3.Click.raise();
    EXPECT_EQ(shell.opened.size(), 1u);
    EXPECT_EQ(form.voice.TTSFileTxt.text(), NAME);
}

TEST_F(VoiceSource, AFileIsFoundHoweverItsPathWasPasted) {
    const struct {
        const char16_t* pasted;
        const char* path;
    } rows[] = {
        {u" /home/a b.wav ", "/home/a b.wav"},
        {u"file:///home/a%20b.wav", "/home/a b.wav"},
        {u"FILE://localhost/home/%ec%9d%b8%EC%82%AC.wav", "/home/인사.wav"},
        {u"file:///home/100%.wav", "/home/100%.wav"},
        {u"\"z:\\home\\인사.wav\"", "z:\\home\\인사.wav"},
        {u" '/home/a b.wav'", "/home/a b.wav"},
        {u"file://server/home/a%20b.wav", "file://server/home/a%20b.wav"},
    };
    desktop.any_box = BoxAnswer::ok;
    for (const auto& row : rows) {
        form.voice.TTSFileTxt.set_text(row.pasted);
        form.voice.TTSBttn3.Click.raise();
        EXPECT_EQ(utf8(form.voice.TTSFileTxt.text()), row.path);
    }
    EXPECT_EQ(shell.opened, std::vector{NAME});
}

TEST_F(VoiceSource, IsNotRecordedOverUnlessSavedOrSentOrTheUserAgrees) {
    const MessageBox question = tests::question(
        u"저장하거나 보내지 않은 녹음이 있습니다. 새로 녹음하면 지워집니다.\r\n\r\n새로 녹음하시겠습니까?",
        {}, BoxIcon::question, BoxAnswer::no);
    const auto record_again = [&] {
        form.voice.RFK1.record();
        if (recorder.recording) recorder.speak(Samples(5, 2));
        form.voice.RFK1.stop();
        return form.voice.RFK1.recording().size();
    };
    form.voice.RFK1.stop();
    desktop.expect_box(question, BoxAnswer::no);
    EXPECT_EQ(record_again(), 10u);
    desktop.expect_file_dialog(SAVE_TITLE, std::nullopt);
    save();
    desktop.expect_box(question, BoxAnswer::yes);
    EXPECT_EQ(record_again(), 5u) << "the trial is no saving";
    desktop.expect_file_dialog(SAVE_TITLE, u"z:\\home\\a.wav");
    save();
    EXPECT_EQ(record_again(), 5u) << "nobody is asked";
    form.choose(compose::MessageKind::voice);
    form.voice.TabStrip2.select(2);
    add(u"a", u"01011112222");
    send();
    EXPECT_EQ(record_again(), 5u) << "nobody is asked about what is sent";
}

TEST_F(VoiceSource, ASoundFileIsTakenWhenItIsDropped) {
    form.choose(compose::MessageKind::voice);
    form.voice.Frame1.Drop.raise({.text = {}, .files = {NAME}});
    EXPECT_EQ(form.voice.TabStrip2.selected(), 3);
    EXPECT_EQ(utf8(form.voice.TTSFileTxt.text()), utf8(NAME));
    for (const std::vector<Text>& files : {std::vector<Text>{u"z:\\a.mp3"}, std::vector<Text>{NAME, NAME}}) {
        desktop.expect_box(tests::refusal(u"첨부할 WAV파일을 선택하여 주십시오."));
        form.voice.Frame1.Drop.raise({.text = {}, .files = files});
    }
}

}  // namespace
