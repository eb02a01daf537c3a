#include "machine/qt/modules/network/network_module.h"
#include "machine/qt/modules/network/qt_internet.h"

#include <QObject>

namespace machine::qt {

/// The object that the program finds in the module.
class NetworkPlugin : public QObject, public NetworkModule {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "zent.NetworkModule/1")
    Q_INTERFACES(machine::qt::NetworkModule)

  public:
    std::unique_ptr<platform::Internet> make_internet(const TransferLimits& limits) const override {
        return std::make_unique<QtInternet>(limits);
    }
};

}  // namespace machine::qt

#include "network_plugin.moc"
