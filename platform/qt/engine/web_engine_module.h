#pragma once

#include "platform/qt/web_engine.h"

#include <QObject>

namespace platform::qt {

/// The module's one object.
class WebEngineModule : public QObject, public WebEngine {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "zent.WebEngine/1")
    Q_INTERFACES(platform::qt::WebEngine)

  public:
    WebEngineModule();

    QString obstacle() const override;
    std::unique_ptr<WebPage> open(QWidget& parent, PageEvents events) override;
};

}  // namespace platform::qt
