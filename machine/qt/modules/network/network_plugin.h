#pragma once

#include "machine/qt/modules/network/network_module.h"

#include <QObject>

namespace machine::qt {

class NetworkPlugin : public QObject, public NetworkModule {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "zent.NetworkModule/1")
    Q_INTERFACES(machine::qt::NetworkModule)

  public:
    std::unique_ptr<platform::Internet> make_internet(const TransferLimits& limits) const override;
};

}  // namespace machine::qt
