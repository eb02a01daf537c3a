#pragma once

#include "platform/qt/network_module.h"

#include <memory>
#include <vector>

class QNetworkAccessManager;

namespace platform::qt {

/// The network by the toolkit, on which nothing is remembered from one transfer to the next.
class QtInternet : public Internet {
  public:
    explicit QtInternet(const TransferLimits& limits);
    /// After its transfers.
    ~QtInternet() override;

    std::unique_ptr<Transfer> make_transfer() override;

    const TransferLimits& limits() const { return limits_; }
    QNetworkAccessManager& manager();
    /// A transfer was given up in its middle. The manager's thread may be reading a header without an end and
    /// hears of nothing meanwhile: the next transfer gets a new one, and this one goes with the program.
    void abandon_manager();

  private:
    TransferLimits limits_;
    std::unique_ptr<QNetworkAccessManager> manager_;
    std::vector<std::unique_ptr<QNetworkAccessManager>> abandoned_;
};

}  // namespace platform::qt
