#pragma once

#include "platform/error.h"
#include "platform/ports/recorder.h"

#include <stdexcept>

namespace tests {

/// A microphone into which the test speaks, and a loudspeaker whose progress the test sets.
class ScriptedRecorder : public platform::Recorder {
  public:
    void open(Listener& listener) override {
        if (!installed)
            throw platform::RuntimeError(platform::ErrorNumber::library_not_loaded,
                                         u"녹음 모듈(zent_sound.so)이 설치되어 있지 않습니다.");
        listener_ = &listener;
    }
    void close() override { listener_ = nullptr; }
    bool has_microphone() const override { return microphone; }
    void start_recording() override { start(recording); }
    void stop_recording() override {
        if (!recording) return;
        recording = false;
        listener_->heard(on_its_way);
    }
    void start_playing(platform::SampleView samples) override {
        start(playing);
        loudspeaker.assign(samples.begin(), samples.end());
    }
    void stop_playing() override { playing = false; }

    void plug_in(bool there) {
        microphone = there;
        listener_->microphone_changed();
    }
    void speak(const platform::Samples& samples) {
        if (!recording) throw std::logic_error("nobody listens");
        listener_->heard(samples);
    }
    void break_recording() {
        recording = false;
        listener_->recording_broken();
    }
    void play_to(std::size_t samples) { listener_->played(samples); }
    void end_playing() {
        playing = false;
        listener_->playing_ended();
    }

    bool installed = true;
    bool microphone = true;
    /// Whether another program uses the device.
    bool busy = false;
    bool recording = false;
    bool playing = false;
    /// The samples that arrive at the end of a recording.
    platform::Samples on_its_way;
    /// The samples that were last played.
    platform::Samples loudspeaker;

  private:
    void start(bool& works) {
        if (busy) throw platform::RuntimeError(platform::ErrorNumber::permission_denied);
        if (recording || playing) throw std::logic_error("two at a time");
        works = true;
    }

    Listener* listener_ = nullptr;
};

}  // namespace tests
