#include "platform/qt/lazy_internet.h"

#include "platform/error.h"
#include "platform/qt/network_module.h"

#include <QPluginLoader>

namespace platform::qt {

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

}  // namespace platform::qt
