#include "machine/qt/desktop/qt_application.h"

namespace machine::qt {

bool QtApplication::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& failure) {
        if (!show_) throw;
        show_(platform::error_of(failure));
        return true;
    }
}

}  // namespace machine::qt
