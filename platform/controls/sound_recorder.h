#pragma once

#include "platform/controls/control.h"
#include "platform/ports/files.h"
#include "platform/ports/recorder.h"

#include <cstdint>

namespace platform {

/// Records a voice from the microphone, with buttons of its own. It holds one recording of up to six minutes,
/// which can be played and saved and stays until the next one replaces it.
class SoundRecorder : public Control, private Recorder::Listener {
  public:
    enum class State { idle, recording, playing };

    static constexpr std::size_t LIMIT = SAMPLES_A_SECOND * 60 * 6;

    SoundRecorder(Form& form, TextView name, Recorder& recorder, Files& files)
        : Control(form, name), recorder_(recorder), files_(files) {}
    ~SoundRecorder() override;
    void accept(ControlVisitor& visitor) override;

    /// Starts to look for the microphone. Called when the user first sees the control; before that the
    /// machine's sound is not touched.
    void open();

    /// Raised before a recording that was neither saved nor sent is replaced; a handler that sets the flag to
    /// false prevents that.
    Event<bool&> Replacing;
    /// The recording has been saved or sent: the next one may replace it without a question.
    void set_kept() { kept_ = true; }

    // The buttons. One that is not available at the moment does nothing.
    void record();
    /// Ends the recording or the playing.
    void stop();
    void play();
    bool can_record() const;
    bool can_stop() const { return state_ != State::idle; }
    bool can_play() const { return state_ == State::idle && !recording_.empty(); }

    State state() const { return state_; }
    const Samples& recording() const { return recording_; }
    /// Grows with every change of the recording.
    std::uint64_t revision() const { return revision_; }
    /// Shows a recording of an earlier run as if it had just been made.
    void take_up(Samples recording);
    /// In minutes and seconds: how much of the possible length is recorded, or how much of the recording is
    /// played.
    Text time() const;
    /// How loud it is now, from 0 to 100.
    int level() const { return level_; }
    const Text& message() const { return message_; }
    /// Whether the message is a warning.
    bool message_warns() const { return message_warns_; }

    /// Writes the recording into the folder, whose name ends with a backslash, as a WAV file; a recording
    /// under way ends first. Returns false on success, and true when nothing is recorded or the file cannot
    /// be written: the control's message then tells the user so, and the caller stops without a box of its
    /// own.
    bool SaveWave(const Text& folder, const Text& file);

  private:
    void microphone_changed() override;
    void heard(SampleView samples) override;
    void recording_broken() override;
    void played(std::size_t samples) override;
    void playing_ended() override;

    bool may_replace();
    void become(State state, Text message);
    void become_idle();
    void inform(Text message);
    void warn(Text message);
    void say(Text message, bool warns);

    Recorder& recorder_;
    Files& files_;
    bool open_ = false;
    State state_ = State::idle;
    Samples recording_;
    std::uint64_t revision_ = 0;
    bool kept_ = true;
    /// The recording is still the earlier one: no sample of the new one has arrived.
    bool holds_earlier_ = false;
    std::size_t played_ = 0;
    int level_ = 0;
    Text message_;
    bool message_warns_ = false;
};

}  // namespace platform
