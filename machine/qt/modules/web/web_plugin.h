#pragma once

#include "machine/qt/modules/web/web_module.h"

#include <QObject>

namespace machine::qt {

class WebPlugin : public QObject, public WebModule {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "zent.WebModule/1")
    Q_INTERFACES(machine::qt::WebModule)

  public:
    QString obstacle() const override;
    std::unique_ptr<WebPage> open(QWidget& parent, PageEvents events) override;

  private:
    bool engine_is_set_up_ = false;
};

}  // namespace machine::qt
