#include "machine/qt/desktop/keep_painted.h"

#include "machine/qt/desktop/x_server.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QScopedValueRollback>
#include <QWindow>
#include <utility>
#include <xcb/xcb.h>

namespace machine::qt {

namespace {

// One for the process, as its event loop is.
bool keeping_painted = false;
bool will_let_input_in = false;

/// Has the X server send something. The toolkit lays the input of the meantime aside and looks there only
/// when the next event comes, which may be the user's next key.
void let_input_in() {
    xcb_connection_t* server = x_server();
    if (server == nullptr) return;
    for (QWindow* window : QGuiApplication::topLevelWindows()) {
        if (window->handle() == nullptr) continue;
        // Nothing put behind a property changes nothing, and its windows are told so.
        xcb_change_property(server, XCB_PROP_MODE_APPEND, static_cast<xcb_window_t>(window->winId()),
                            XCB_ATOM_WM_CLIENT_MACHINE, XCB_ATOM_STRING, 8, 0, nullptr);
        xcb_flush(server);
        return;
    }
}

/// Once the event loop goes on, not while it is run to paint.
void let_input_in_after_the_work() {
    if (std::exchange(will_let_input_in, true)) return;
    QMetaObject::invokeMethod(
        qGuiApp,
        [] {
            will_let_input_in = false;
            if (!keeping_painted) let_input_in();
        },
        Qt::QueuedConnection);
}

}  // namespace

void keep_painted() {
    {
        const QScopedValueRollback<bool> keeping(keeping_painted, true);
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }
    let_input_in_after_the_work();
}

bool is_keeping_painted() { return keeping_painted; }

}  // namespace machine::qt
