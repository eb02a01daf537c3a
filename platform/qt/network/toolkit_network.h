#pragma once

#include "platform/qt/network/qt_internet.h"

#include <QObject>

namespace platform::qt {

/// The module's one object.
class ToolkitNetwork : public QObject, public NetworkModule {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "zent.NetworkModule/1")
    Q_INTERFACES(platform::qt::NetworkModule)

  public:
    std::unique_ptr<Internet> make_internet(const TransferLimits& limits) const override;
};

}  // namespace platform::qt
