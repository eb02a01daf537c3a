#pragma once

#include "platform/qt/network_module.h"

#include <memory>

class QNetworkAccessManager;

namespace platform::qt {

/// The network by the toolkit, through the proxy that the user's system names. Nothing is remembered from one
/// transfer to the next.
class QtInternet : public Internet {
  public:
    explicit QtInternet(const TransferLimits& limits);
    /// After its transfers.
    ~QtInternet() override;

    std::unique_ptr<Transfer> make_transfer() override;

    const TransferLimits& limits() const { return limits_; }
    QNetworkAccessManager& manager();

  private:
    TransferLimits limits_;
    std::unique_ptr<QNetworkAccessManager> manager_;
};

}  // namespace platform::qt
