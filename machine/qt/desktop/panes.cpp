#include "machine/qt/desktop/panes.h"

#include <QVariant>
#include <QWidget>

namespace machine::qt {

bool move_to_pane(QWidget& window, bool forward) {
    const QStringList panes = window.property("panes").toStringList();
    if (panes.isEmpty()) return false;
    QWidget* now = window.focusWidget() != nullptr ? window.focusWidget() : &window;
    QWidget* next = now;
    do {
        next = forward ? next->nextInFocusChain() : next->previousInFocusChain();
    } while (next != now && !(panes.contains(next->objectName()) && next->isVisible() && next->isEnabled()));
    next->setFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

}  // namespace machine::qt
