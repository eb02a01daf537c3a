#include "machine/qt/modules/web/web_engine_module.h"

#include "machine/qt/modules/web/confinement.h"
#include "machine/qt/modules/web/page_view.h"

#include <QAccessible>
#include <QApplication>
#include <QLoggingCategory>
#include <QPalette>
#include <QQuickWindow>

namespace machine::qt {

namespace {

/// Hands the engine its switches: it looks for them in the environment, and once only, when the first page is
/// made.
void set_up_engine() {
    QByteArray switches = qgetenv("QTWEBENGINE_CHROMIUM_FLAGS") + " --lang=ko";
    if (QApplication::palette().window().color().lightness() < 128) switches += " --force-dark-mode";
    // The engine keeps a page's contents from screen readers unless it is told of them at its start.
    if (QAccessible::isActive()) switches += " --force-renderer-accessibility";
    qputenv("QTWEBENGINE_CHROMIUM_FLAGS", switches);
    if (confinement() == Confinement::not_for_root) qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    // Pages of text and tables need no graphics card. Sharing one with the engine would have to be prepared
    // at the program's start, which takes longer than all the rest of the start.
    QQuickWindow::setSceneGraphBackend(QStringLiteral("software"));
    // It would tell the terminal about it at length, and on a screen with graphics of its own it ends the
    // program over that.
    QLoggingCategory::setFilterRules(QStringLiteral("qt.webenginecontext*=false"));
}

}  // namespace

WebEngineModule::WebEngineModule() { set_up_engine(); }

QString WebEngineModule::obstacle() const {
    if (confinement() != Confinement::impossible) return {};
    return QStringLiteral(
        "이 컴퓨터의 보안 설정에서는 페이지를 안전하게 보여 줄 수 없습니다.\n"
        "시스템 관리자에게 문의해 주십시오.");
}

std::unique_ptr<WebPage> WebEngineModule::open(QWidget& parent, PageEvents events) {
    return std::make_unique<PageView>(parent, std::move(events));
}

}  // namespace machine::qt
