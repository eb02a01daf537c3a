#include "machine/qt/typing/insertions.h"

#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>

namespace machine::qt {

QString text_to_insert(const QEvent& event) {
    switch (event.type()) {
        case QEvent::KeyPress:
            return static_cast<const QKeyEvent&>(event).matches(QKeySequence::Paste) ? text_to_paste()
                                                                                     : QString();
        case QEvent::MouseButtonRelease:
            return static_cast<const QMouseEvent&>(event).button() == Qt::MiddleButton
                       ? QGuiApplication::clipboard()->text(QClipboard::Selection)
                       : QString();
        case QEvent::Drop:
            return static_cast<const QDropEvent&>(event).mimeData()->text();
        default:
            return {};
    }
}

QString text_to_paste() { return QGuiApplication::clipboard()->text(); }

bool is_table(const QString& text) {
    return text.contains(u'\t') || QStringView(text).trimmed().contains(u'\n');
}

void open_menu(QLineEdit& field, const QPoint& at, const std::function<void()>& paste) {
    QMenu* menu = field.createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (QAction* action : menu->actions()) {
        if (!action->text().startsWith(QLineEdit::tr("&Paste"))) continue;
        action->disconnect(&field);
        QObject::connect(action, &QAction::triggered, &field, paste);
    }
    menu->popup(at);
}

}  // namespace machine::qt
