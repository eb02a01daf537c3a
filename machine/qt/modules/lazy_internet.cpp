#include "machine/qt/modules/lazy_internet.h"

#include "machine/qt/modules/network_module.h"
#include "platform/error.h"

#include <QPluginLoader>

namespace machine::qt {

using platform::ErrorNumber;
using platform::RuntimeError;
using platform::Text;
using platform::TextView;
using platform::Transfer;

namespace {

/// What is left of a network without its module.
class NoTransfer : public Transfer {
  public:
    void execute(const Text&) override { fail(); }
    bool still_executing() const override { return false; }
    Text header() const override { fail(); }
    Text header(TextView) const override { fail(); }
    std::string chunk(std::size_t) override { fail(); }
    std::string open_url(const Text&, std::size_t) override { fail(); }
    void cancel() override {}

  private:
    [[noreturn]] static void fail() { throw RuntimeError(ErrorNumber::library_not_loaded); }
};

}  // namespace

std::unique_ptr<Transfer> LazyInternet::make_transfer() {
    if (internet_ == nullptr) {
        const auto* module =
            qobject_cast<NetworkModule*>(QPluginLoader(QStringLiteral("zent_network")).instance());
        if (module == nullptr) return std::make_unique<NoTransfer>();
        internet_ = module->make_internet(TransferLimits{});
    }
    return internet_->make_transfer();
}

}  // namespace machine::qt
