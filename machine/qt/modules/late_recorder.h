#pragma once

#include "platform/ports/recorder.h"

#include <memory>

namespace machine::qt {

/// The machine's recorder, out of the module beside the program, which is loaded when it is opened.
class LateRecorder : public platform::Recorder {
  public:
    void open(Listener& listener) override;
    void close() override { recorder_->close(); }
    bool has_microphone() const override { return recorder_->has_microphone(); }
    void start_recording() override { recorder_->start_recording(); }
    void stop_recording() override { recorder_->stop_recording(); }
    void start_playing(platform::SampleView samples) override { recorder_->start_playing(samples); }
    void stop_playing() override { recorder_->stop_playing(); }

  private:
    /// There from the first opening that did not fail; nothing else is called before.
    std::unique_ptr<platform::Recorder> recorder_;
};

}  // namespace machine::qt
