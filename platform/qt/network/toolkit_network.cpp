#include "platform/qt/network/toolkit_network.h"

namespace platform::qt {

std::unique_ptr<Internet> ToolkitNetwork::make_internet(const TransferLimits& limits) const {
    return std::make_unique<QtInternet>(limits);
}

}  // namespace platform::qt
