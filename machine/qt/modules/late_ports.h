#pragma once

#include "platform/ports/internet.h"
#include "platform/ports/recorder.h"

#include <memory>

namespace machine::qt {

/// The recorder of the module `zent_sound`, which is loaded when it is opened.
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
    /// Set by the first opening that succeeds; nothing else is called before that.
    std::unique_ptr<platform::Recorder> recorder_;
};

/// The network of the module `zent_network`, which is loaded for the first transfer.
class LateInternet : public platform::Internet {
  public:
    /// Without the module, whatever is asked of the transfer raises RuntimeError 48.
    std::unique_ptr<platform::Transfer> make_transfer() override;

  private:
    std::unique_ptr<platform::Internet> internet_;
};

}  // namespace machine::qt
