#pragma once

#include "platform/controls/control.h"
#include "platform/ports/files.h"
#include "platform/ports/recorder.h"

namespace platform {

/// Records a voice at the microphone, with its own buttons: one recording of up to six minutes, which can be
/// played and saved and stays until the next one takes its place.
class SoundRecorder : public Control, private Recorder::Listener {
  public:
    enum class State { idle, recording, playing };

    static constexpr std::size_t LIMIT = SAMPLES_A_SECOND * 60 * 6;

    SoundRecorder(Form& form, TextView name, Recorder& recorder, Files& files)
        : Control(form, name), recorder_(recorder), files_(files) {}
    ~SoundRecorder() override;
    void accept(ControlVisitor& visitor) override;

    /// Looks for the microphone. Before the user first sees the control nothing is asked of the machine.
    void open();

    /// A recording that is nowhere else is about to be replaced, unless a handler sets the flag to false.
    Event<bool&> Replacing;
    /// The user has the recording, or its recipients do: the next one may replace it.
    void set_kept() { kept_ = true; }

    // The buttons; one that cannot be pressed now does nothing.
    void record();
    /// Ends the recording or the playing.
    void stop();
    void play();
    bool can_record() const;
    bool can_stop() const { return state_ != State::idle; }
    bool can_play() const { return state_ == State::idle && !recording_.empty(); }

    State state() const { return state_; }
    const Samples& recording() const { return recording_; }
    /// Minutes and seconds: how much is recorded of what can be, or played of what is recorded.
    Text time() const;
    /// How loud it is now, from 0 to 100.
    int level() const { return level_; }
    const Text& message() const { return message_; }
    /// Whether the message tells the user of something that goes wrong.
    bool message_warns() const { return message_warns_; }

    /// Writes the recording into the folder, whose name ends with a backslash, as a WAV file; one that is
    /// under way ends first. Returns false when the file stands. True when nothing is recorded or the file
    /// cannot be written: the control's message has told the user, and the caller stops without one of its
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
    bool kept_ = true;
    /// The recording is still that of before: nothing of the new one has been heard.
    bool holds_earlier_ = false;
    std::size_t played_ = 0;
    int level_ = 0;
    Text message_;
    bool message_warns_ = false;
};

}  // namespace platform
