#pragma once

#include "machine/qt/modules/web_engine.h"

#include <QObject>

namespace machine::qt {

/// The module's one object.
class WebEngineModule : public QObject, public WebEngine {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "zent.WebEngine/1")
    Q_INTERFACES(machine::qt::WebEngine)

  public:
    WebEngineModule();

    QString obstacle() const override;
    std::unique_ptr<WebPage> open(QWidget& parent, PageEvents events) override;
};

}  // namespace machine::qt
