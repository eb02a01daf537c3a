#include "machine/qt/modules/web/page_view.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QFontInfo>
#include <QKeyEvent>
#include <QMenu>
#include <QWebEngineHttpRequest>

namespace machine::qt {

namespace {

/// The engine's view with a menu of what users can do with a page.
class View : public QWebEngineView {
  public:
    using QWebEngineView::QWebEngineView;

  protected:
    void contextMenuEvent(QContextMenuEvent* event) override {
        QMenu menu(this);
        add(menu, QWebEnginePage::Back, "뒤로(&B)");
        add(menu, QWebEnginePage::Forward, "앞으로(&F)");
        add(menu, QWebEnginePage::Reload, "새로 고침(&R)");
        menu.addSeparator();
        add(menu, QWebEnginePage::Cut, "잘라내기(&T)");
        add(menu, QWebEnginePage::Copy, "복사(&C)");
        add(menu, QWebEnginePage::Paste, "붙여넣기(&P)");
        add(menu, QWebEnginePage::SelectAll, "모두 선택(&S)");
        menu.exec(event->globalPos());
    }

  private:
    void add(QMenu& menu, QWebEnginePage::WebAction what, const char* caption) {
        QAction* action = pageAction(what);
        action->setText(QString::fromUtf8(caption));
        action->setIcon(QIcon());
        menu.addAction(action);
    }
};

bool is_escape(const QEvent& event) {
    return event.type() == QEvent::KeyPress && static_cast<const QKeyEvent&>(event).key() == Qt::Key_Escape;
}

QWebEngineHttpRequest engine_request(const QUrl& address, const PageRequest& request) {
    const auto method = request.body.isEmpty() ? QWebEngineHttpRequest::Get : QWebEngineHttpRequest::Post;
    QWebEngineHttpRequest posted(address, method);
    for (const QByteArray& line : request.header.split('\n')) {
        const qsizetype colon = line.indexOf(':');
        if (colon > 0) posted.setHeader(line.left(colon), line.mid(colon + 1).trimmed());
    }
    // Last, since changing a request after that loses its body.
    if (!request.body.isEmpty()) posted.setPostData(request.body);
    return posted;
}

}  // namespace

PageView::PageView(QWidget& parent, PageEvents events)
    : progress_(std::move(events.progress)),
      downloads_(profile_, std::move(events.files)),
      view_(std::make_unique<View>(&parent)) {
    view_->setPage(&page_);
    // Otherwise a file dropped on the page would be passed to it.
    view_->setAcceptDrops(false);
    zoom();
    view_->setAccessibleName(QStringLiteral("웹 페이지"));
    connect(&page_, &QWebEnginePage::loadProgress, this, progress_);
    connect(&page_, &QWebEnginePage::loadFinished, this, [this] {
        // The engine may forget it on the way to another site.
        zoom();
        progress_(100);
    });
    connect(&page_, &QWebEnginePage::renderProcessTerminated, this,
            [died = std::move(events.died)](QWebEnginePage::RenderProcessTerminationStatus status) {
                if (status != QWebEnginePage::NormalTerminationStatus) died();
            });
    qApp->installEventFilter(this);
}

void PageView::zoom() {
    // Pages are written for a desktop whose text has this size.
    constexpr double USUAL_PIXELS = 13;
    view_->setZoomFactor(qMax(QFontInfo(QApplication::font()).pixelSize() / USUAL_PIXELS, 1.0));
}

void PageView::load(const PageRequest& request) {
    const QUrl address = QUrl::fromUserInput(request.address);
    if (is_web_address(address)) {
        page_.load(engine_request(address, request));
    } else {
        progress_(100);
    }
}

bool PageView::eventFilter(QObject* object, QEvent* event) {
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::MouseButtonRelease) return false;
    const auto* widget = qobject_cast<QWidget*>(object);
    // An Escape that closed a list in the page is passed on by the engine; it must not close the form too.
    if (widget == view_->parentWidget() && !event->spontaneous()) return is_escape(*event);
    if (widget == nullptr || (widget != view_.get() && !view_->isAncestorOf(widget))) return false;
    if (event->type() == QEvent::MouseButtonRelease) {
        downloads_.user_acted();
        return false;
    }
    switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Escape:
            // Sent to the window directly: a page could swallow it, but the user must be able to close the
            // form.
            return QCoreApplication::sendEvent(view_->window(), event);
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            downloads_.user_acted();
            return false;
        default:
            return false;
    }
}

}  // namespace machine::qt
