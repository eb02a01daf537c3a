#include "machine/qt/modules/web/confinement.h"
#include "machine/qt/modules/web/page_view.h"
#include "machine/qt/modules/web/web_module.h"

#include <QAccessible>
#include <QApplication>
#include <QLoggingCategory>
#include <QObject>
#include <QPalette>
#include <QQuickWindow>
#include <utility>

namespace machine::qt {

namespace {

/// Sets the engine's switches. It reads them from the environment, once, when the first page is made; no
/// other way to set them exists.
void set_up_engine() {
    QByteArray switches = qgetenv("QTWEBENGINE_CHROMIUM_FLAGS") + " --lang=ko";
    if (QApplication::palette().window().color().lightness() < 128) switches += " --force-dark-mode";
    // The engine serves screen readers only if it is told so at its start.
    if (QAccessible::isActive()) switches += " --force-renderer-accessibility";
    qputenv("QTWEBENGINE_CHROMIUM_FLAGS", switches);
    if (confinement() == Confinement::not_for_root) qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    // Pages of text and tables need no graphics card. To share one with the engine, Qt would have to prepare
    // it when the program starts, which takes longer than the rest of the start.
    QQuickWindow::setSceneGraphBackend(QStringLiteral("software"));
    // The engine would log at length that it shares no graphics card, and where there is one it would end the
    // program over that.
    QLoggingCategory::setFilterRules(QStringLiteral("qt.webenginecontext*=false"));
}

}  // namespace

/// The object that the program finds in the module.
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

QString WebPlugin::obstacle() const {
    if (confinement() != Confinement::impossible) return {};
    return QStringLiteral(
        "이 컴퓨터의 보안 설정에서는 페이지를 안전하게 보여 줄 수 없습니다.\n"
        "시스템 관리자에게 문의해 주십시오.");
}

std::unique_ptr<WebPage> WebPlugin::open(QWidget& parent, PageEvents events) {
    if (!std::exchange(engine_is_set_up_, true)) set_up_engine();
    return std::make_unique<PageView>(parent, std::move(events));
}

}  // namespace machine::qt

#include "web_plugin.moc"
