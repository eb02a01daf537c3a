#include "machine/qt/desktop/help_key.h"

#include <QApplication>
#include <QKeyEvent>

namespace machine::qt {

HelpKey::HelpKey() { QCoreApplication::instance()->installEventFilter(this); }

bool HelpKey::eventFilter(QObject*, QEvent* event) {
    const bool is_of_key = event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress ||
                           event->type() == QEvent::KeyRelease;
    if (!is_of_key) return false;
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (key.key() != Qt::Key_F1 || key.modifiers() != Qt::NoModifier) return false;
    if (key.type() == QEvent::KeyPress) {
        press(key.isAutoRepeat());
    } else if (key.type() == QEvent::KeyRelease) {
        up_.start();
    } else {
        // The menu that shows the key is not pressed by it.
        event->accept();
    }
    return true;
}

void HelpKey::press(bool repeated) {
    // Not every keyboard says that a key is held. Between its repeats it is up for no time.
    constexpr int SHORTEST_UP = 50;
    if (repeated || (up_.isValid() && !up_.hasExpired(SHORTEST_UP))) return;
    // An open menu holds the keyboard, and a box could not be answered.
    if (QApplication::activePopupWidget() != nullptr) return;
    QMetaObject::invokeMethod(this, &HelpKey::pressed, Qt::QueuedConnection);
}

}  // namespace machine::qt
