#include "machine/qt/desktop/help_key.h"

#include <QApplication>
#include <QKeyEvent>

namespace machine::qt {

HelpKey::HelpKey() { QCoreApplication::instance()->installEventFilter(this); }

bool HelpKey::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return false;
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (key.key() != Qt::Key_F1 || key.modifiers() != Qt::NoModifier) return false;
    // An open menu holds the keyboard, and a box could not be answered.
    const bool counts = !key.isAutoRepeat() && QApplication::activePopupWidget() == nullptr;
    if (counts) QMetaObject::invokeMethod(this, &HelpKey::pressed, Qt::QueuedConnection);
    return true;
}

}  // namespace machine::qt
