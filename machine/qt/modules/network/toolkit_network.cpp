#include "machine/qt/modules/network/toolkit_network.h"

namespace machine::qt {

using platform::Internet;

std::unique_ptr<Internet> ToolkitNetwork::make_internet(const TransferLimits& limits) const {
    return std::make_unique<QtInternet>(limits);
}

}  // namespace machine::qt
