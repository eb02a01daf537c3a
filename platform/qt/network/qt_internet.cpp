#include "platform/qt/network/qt_internet.h"

#include "platform/qt/network/qt_transfer.h"

#include <QNetworkAccessManager>
#include <QNetworkProxy>

namespace platform::qt {

QtInternet::QtInternet(const TransferLimits& limits) : limits_(limits) {}

QtInternet::~QtInternet() = default;

std::unique_ptr<Transfer> QtInternet::make_transfer() { return std::make_unique<QtTransfer>(*this); }

QNetworkAccessManager& QtInternet::manager() {
    if (manager_ == nullptr) {
        manager_ = std::make_unique<QNetworkAccessManager>();
        // The toolkit would take one from the environment, which this program does not read.
        manager_->setProxy(QNetworkProxy::NoProxy);
    }
    return *manager_;
}

void QtInternet::abandon_manager() {
    if (manager_ != nullptr) abandoned_.push_back(std::move(manager_));
}

}  // namespace platform::qt
