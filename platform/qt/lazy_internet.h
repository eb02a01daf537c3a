#pragma once

#include "platform/ports/internet.h"

namespace platform::qt {

/// The network by the module beside the program, which is loaded for the first transfer.
class LazyInternet : public Internet {
  public:
    /// Raises RuntimeError 48 when the module is missing or does not fit.
    std::unique_ptr<Transfer> make_transfer() override;

  private:
    std::unique_ptr<Internet> internet_;
};

}  // namespace platform::qt
