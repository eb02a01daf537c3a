#include "machine/qt/typing/last_key.h"

#include "machine/qt/typing/typed_text.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>

namespace machine::qt {

LastKey::LastKey() { QCoreApplication::instance()->installEventFilter(this); }

std::chrono::milliseconds LastKey::age() const {
    return since_.isValid() ? std::chrono::milliseconds(since_.elapsed()) : std::chrono::milliseconds::max();
}

bool LastKey::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const auto* widget = qobject_cast<const QWidget*>(object);
        wrote_ = widget != nullptr && widget->testAttribute(Qt::WA_InputMethodEnabled) &&
                 !written_by(static_cast<const QKeyEvent&>(*event)).isEmpty();
        since_.start();
    } else if (event->type() == QEvent::MouseButtonPress) {
        wrote_ = false;
    } else if (event->type() == QEvent::InputMethod) {
        wrote_ = true;
        since_.start();
    }
    return false;
}

}  // namespace machine::qt
