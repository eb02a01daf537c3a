#include "platform/qt/keep_painted.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QScopedValueRollback>

namespace platform::qt {

namespace {

// One for the process, as its event loop is.
bool keeping_painted = false;

}  // namespace

void keep_painted() {
    const QScopedValueRollback<bool> keeping(keeping_painted, true);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

bool is_keeping_painted() { return keeping_painted; }

}  // namespace platform::qt
