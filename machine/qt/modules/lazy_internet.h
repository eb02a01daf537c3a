#pragma once

#include "platform/ports/internet.h"

namespace machine::qt {

/// The network by the module beside the program, which is loaded for the first transfer.
class LazyInternet : public platform::Internet {
  public:
    /// When the module is missing or does not fit, nothing is within reach: whatever is asked of the transfer
    /// raises RuntimeError 48.
    std::unique_ptr<platform::Transfer> make_transfer() override;

  private:
    std::unique_ptr<platform::Internet> internet_;
};

}  // namespace machine::qt
