#include "machine/qt/typing/user_edits.h"

#include <QScopedValueRollback>

namespace machine::qt {

void UserEdits::settle() {
    while (!running_ && field_.is_live() && waiting()) {
        agreed_ = field_.widget_text();
        run([this] { field_.give_to_model(); });
    }
}

void UserEdits::run(const std::function<void()>& handlers) {
    {
        // Handlers of a field may lead to further handlers of the same field.
        if (!running_) rewritten_ = false;
        const QScopedValueRollback<bool> running(running_, true);
        handlers();
    }
    if (!running_ && rewritten_ && field_.is_live() && waiting()) field_.write_back();
}

void UserEdits::written() {
    agreed_ = field_.widget_text();
    rewritten_ = true;
}

}  // namespace machine::qt
