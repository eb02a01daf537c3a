#include "machine/qt/modules/network/qt_internet.h"

#include "machine/qt/modules/network/qt_transfer.h"

#include <QNetworkAccessManager>
#include <QNetworkProxyFactory>

namespace machine::qt {

namespace {

/// The system's proxies. For `NoProxy` Qt reads the connection byte by byte while more arrives and its thread
/// notices no abort, so that an endless header would block it forever. With `DefaultProxy` it reads in pieces
/// and notices an abort.
class SystemProxies : public QNetworkProxyFactory {
  public:
    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery& query) override {
        QList<QNetworkProxy> proxies = systemProxyForQuery(query);
        for (QNetworkProxy& proxy : proxies)
            if (proxy.type() == QNetworkProxy::NoProxy) proxy = QNetworkProxy(QNetworkProxy::DefaultProxy);
        return proxies;
    }
};

}  // namespace

QtInternet::QtInternet(const TransferLimits& limits) : limits_(limits) {}

QtInternet::~QtInternet() = default;

std::unique_ptr<platform::Transfer> QtInternet::make_transfer() {
    return std::make_unique<QtTransfer>(*this);
}

QNetworkAccessManager& QtInternet::manager() {
    if (manager_ == nullptr) {
        manager_ = std::make_unique<QNetworkAccessManager>();
        // The manager takes ownership.
        manager_->setProxyFactory(new SystemProxies);
    }
    return *manager_;
}

}  // namespace machine::qt
