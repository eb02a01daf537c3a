#include "platform/qt/lazy_internet.h"

#include "platform/error.h"
#include "platform/qt/network_module.h"

#include <QPluginLoader>

namespace platform::qt {

std::unique_ptr<Transfer> LazyInternet::make_transfer() {
    if (internet_ == nullptr) {
        const auto* module =
            qobject_cast<NetworkModule*>(QPluginLoader(QStringLiteral("zent_network")).instance());
        if (module == nullptr) throw RuntimeError(ErrorNumber::library_not_loaded);
        internet_ = module->make_internet(TransferLimits{});
    }
    return internet_->make_transfer();
}

}  // namespace platform::qt
