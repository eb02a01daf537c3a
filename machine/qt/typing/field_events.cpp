#include "machine/qt/typing/field_events.h"

#include "machine/qt/typing/composition.h"
#include "machine/qt/typing/conversion.h"
#include "machine/qt/typing/undoing.h"

#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QScopeGuard>
#include <QWidget>

namespace machine::qt {

using platform::KeyPressed;

namespace {

/// Whether the event goes on to the field.
bool admit(QWidget& field, QEvent& event, const std::function<void(KeyPressed&)>& press_key) {
    if (event.type() == QEvent::InputMethod) {
        return note_composition(field, static_cast<const QInputMethodEvent&>(event));
    }
    note_key();
    KeyPressed key{key_code(static_cast<const QKeyEvent&>(event))};
    if (key.swallowed()) return true;
    press_key(key);
    return !key.swallowed();
}

}  // namespace

bool filter_field_event(QWidget& field, QEvent& event, const std::function<void(KeyPressed&)>& press_key,
                        const std::function<void(bool begins)>& working) {
    switch (event.type()) {
        case QEvent::FocusOut:
            if (static_cast<QFocusEvent&>(event).reason() != Qt::PopupFocusReason) commit_composition(field);
            return false;
        case QEvent::MouseButtonPress:
            commit_composition(field);
            return false;
        case QEvent::KeyPress:
        case QEvent::InputMethod:
            break;
        default:
            return false;
    }
    if (!admit(field, event, press_key)) {
        event.accept();
        return true;
    }
    working(true);
    const auto done = qScopeGuard([&] { working(false); });
    if (event.type() == QEvent::KeyPress && is_second_redo(static_cast<QKeyEvent&>(event))) {
        redo(field);
    } else {
        static_cast<QObject&>(field).event(&event);
    }
    return true;
}

}  // namespace machine::qt
