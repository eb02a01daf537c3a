#include "machine/qt/modules/late_ports.h"

#include "machine/qt/modules/load_module.h"
#include "machine/qt/modules/network/network_module.h"
#include "machine/qt/modules/sound/sound_module.h"

#include <utility>

namespace machine::qt {

using platform::RuntimeError;
using platform::Text;
using platform::Transfer;

namespace {

/// A transfer that cannot be made. The update check meets the error where it asks the server, as it does when
/// the server is out of reach.
class FailedTransfer : public Transfer {
  public:
    explicit FailedTransfer(RuntimeError error) : error_(std::move(error)) {}

    void execute(const Text&) override { throw error_; }
    bool still_executing() const override { return false; }
    Text header() const override { throw error_; }
    Text header(platform::TextView) const override { throw error_; }
    std::string chunk(std::size_t) override { throw error_; }
    std::string open_url(const Text&, std::size_t) override { throw error_; }
    void cancel() override {}

  private:
    RuntimeError error_;
};

}  // namespace

void LateRecorder::open(Listener& listener) {
    if (recorder_ == nullptr) recorder_ = load_module<SoundModule>().make_recorder();
    recorder_->open(listener);
}

std::unique_ptr<Transfer> LateInternet::make_transfer() {
    try {
        if (internet_ == nullptr) internet_ = load_module<NetworkModule>().make_internet(TransferLimits{});
        return internet_->make_transfer();
    } catch (const RuntimeError& error) {
        return std::make_unique<FailedTransfer>(error);
    }
}

}  // namespace machine::qt
