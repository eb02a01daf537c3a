#include "machine/qt/modules/network/network_plugin.h"

#include "machine/qt/modules/network/qt_internet.h"

namespace machine::qt {

using platform::Internet;

std::unique_ptr<Internet> NetworkPlugin::make_internet(const TransferLimits& limits) const {
    return std::make_unique<QtInternet>(limits);
}

}  // namespace machine::qt
