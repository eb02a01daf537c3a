#include "machine/qt/typing/key_code.h"

#include "platform/controls/fields.h"

#include <QKeyEvent>

namespace machine::qt {

using platform::KEY_BACKSPACE;
using platform::KEY_CTRL_A;
using platform::KEY_DOWN;
using platform::KEY_END;
using platform::KEY_ENTER;
using platform::KEY_HOME;
using platform::KEY_PAGE_DOWN;
using platform::KEY_PAGE_UP;
using platform::KEY_UP;

int key_code(const QKeyEvent& event) {
    if ((event.modifiers() & (Qt::AltModifier | Qt::MetaModifier)) != 0) return 0;
    switch (event.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return KEY_ENTER;
        case Qt::Key_Backspace:
            return KEY_BACKSPACE;
        case Qt::Key_Delete:
        case Qt::Key_Escape:
            return 0;
        default:
            break;
    }
    // Platforms differ in the text that they give a letter with Ctrl.
    if ((event.modifiers() & Qt::ControlModifier) != 0 && event.key() >= Qt::Key_A &&
        event.key() <= Qt::Key_Z) {
        return event.key() - Qt::Key_A + KEY_CTRL_A;
    }
    return event.text().isEmpty() ? 0 : event.text().front().unicode();
}

int moving_key_code(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Up:
            return KEY_UP;
        case Qt::Key_Down:
            return KEY_DOWN;
        case Qt::Key_PageUp:
            return KEY_PAGE_UP;
        case Qt::Key_PageDown:
            return KEY_PAGE_DOWN;
        case Qt::Key_Home:
            return KEY_HOME;
        case Qt::Key_End:
            return KEY_END;
        default:
            return 0;
    }
}

}  // namespace machine::qt
