#include "machine/qt/modules/network/qt_internet.h"

#include "machine/qt/modules/network/qt_transfer.h"

#include <QNetworkAccessManager>
#include <QNetworkProxyFactory>

namespace machine::qt {

using platform::Transfer;

namespace {

/// The system's proxies. Where it has none the toolkit would read a plain connection byte by byte for as long
/// as more comes: its thread would hear of no abort, and a header without an end would keep it for ever. With
/// the connection left to the socket's own default it reads in pieces and hears.
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

std::unique_ptr<Transfer> QtInternet::make_transfer() { return std::make_unique<QtTransfer>(*this); }

QNetworkAccessManager& QtInternet::manager() {
    if (manager_ == nullptr) {
        manager_ = std::make_unique<QNetworkAccessManager>();
        // It owns them.
        manager_->setProxyFactory(new SystemProxies);
    }
    return *manager_;
}

}  // namespace machine::qt
