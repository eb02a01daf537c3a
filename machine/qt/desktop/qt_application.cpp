#include "machine/qt/desktop/qt_application.h"

namespace machine::qt {

bool QtApplication::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const platform::RuntimeError& error) {
        if (!show_) throw;
        show_(error);
        return true;
    }
}

}  // namespace machine::qt
