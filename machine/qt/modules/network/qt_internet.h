#pragma once

#include "machine/qt/modules/network/network_module.h"

#include <memory>

class QNetworkAccessManager;

namespace machine::qt {

/// The network with Qt, through the proxy of the user's system. Nothing is kept from one transfer to the
/// next.
class QtInternet : public platform::Internet {
  public:
    explicit QtInternet(const TransferLimits& limits);
    /// Its transfers have to be destroyed before.
    ~QtInternet() override;

    std::unique_ptr<platform::Transfer> make_transfer() override;

    const TransferLimits& limits() const { return limits_; }
    QNetworkAccessManager& manager();

  private:
    TransferLimits limits_;
    std::unique_ptr<QNetworkAccessManager> manager_;
};

}  // namespace machine::qt
