#include "machine/qt/desktop/long_work.h"

#include <QCursor>
#include <QEventLoop>
#include <QGuiApplication>
#include <QScopedValueRollback>
#include <QWindow>
#include <algorithm>
#include <cstdlib>
#include <memory>
#include <utility>
#include <xcb/xcb.h>

namespace machine::qt {

namespace {

/// State of the process's one event loop.
struct {
    bool keeping_painted = false;
    bool will_let_input_in = false;
} event_loop;

/// A question to the X server takes a round trip. A user is not quicker than this, in milliseconds.
constexpr int BETWEEN_QUESTIONS = 10;

constexpr std::uint32_t ALL_BUTTONS =
    XCB_BUTTON_MASK_1 | XCB_BUTTON_MASK_2 | XCB_BUTTON_MASK_3 | XCB_BUTTON_MASK_4 | XCB_BUTTON_MASK_5;

template <class Reply>
using Freed = std::unique_ptr<Reply, decltype(&std::free)>;

/// The program's connection to the X server; null on other desktops.
xcb_connection_t* x_server() {
    // The offscreen platform has the interface, too, but no server behind it.
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 != nullptr && QGuiApplication::platformName() == QStringLiteral("xcb") ? x11->connection()
                                                                                      : nullptr;
}

/// Makes the X server send an event. Qt keeps the input that it read meanwhile and delivers it only with the
/// next event, which might be the user's next key.
void let_input_in() {
    xcb_connection_t* server = x_server();
    if (server == nullptr) return;
    for (QWindow* window : QGuiApplication::topLevelWindows()) {
        if (window->handle() == nullptr) continue;
        // Appending nothing to a window's property changes nothing, but the window is notified of it.
        xcb_change_property(server, XCB_PROP_MODE_APPEND, static_cast<xcb_window_t>(window->winId()),
                            XCB_ATOM_WM_CLIENT_MACHINE, XCB_ATOM_STRING, 8, 0, nullptr);
        xcb_flush(server);
        return;
    }
}

/// Waits until the event loop runs again for other things than painting.
void let_input_in_after_the_work() {
    if (std::exchange(event_loop.will_let_input_in, true)) return;
    QMetaObject::invokeMethod(
        qGuiApp,
        [] {
            event_loop.will_let_input_in = false;
            if (!event_loop.keeping_painted) let_input_in();
        },
        Qt::QueuedConnection);
}

void read_keys_and_buttons(xcb_connection_t& server, InputState& state) {
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(&server)).data->root;
    const auto keys_asked = xcb_query_keymap(&server);
    const auto pointer_asked = xcb_query_pointer(&server, root);
    const Freed<xcb_query_keymap_reply_t> keys(xcb_query_keymap_reply(&server, keys_asked, nullptr),
                                               &std::free);
    const Freed<xcb_query_pointer_reply_t> pointer(xcb_query_pointer_reply(&server, pointer_asked, nullptr),
                                                   &std::free);
    if (keys) std::copy(std::begin(keys->keys), std::end(keys->keys), state.keys.begin());
    if (pointer) state.buttons = pointer->mask & ALL_BUTTONS;
}

InputState read_input_state() {
    InputState state;
    state.mouse = QCursor::pos();
    if (xcb_connection_t* server = x_server()) read_keys_and_buttons(*server, state);
    return state;
}

}  // namespace

void keep_painted() {
    {
        const QScopedValueRollback<bool> keeping(event_loop.keeping_painted, true);
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }
    let_input_in_after_the_work();
}

bool is_keeping_painted() { return event_loop.keeping_painted; }

QtInputWatch::QtInputWatch() : at_start_(read_input_state()) { asked_.start(); }

bool QtInputWatch::input_waits() {
    if (waits_ || !asked_.hasExpired(BETWEEN_QUESTIONS)) return waits_;
    waits_ = user_acted(at_start_, read_input_state());
    asked_.start();
    return waits_;
}

bool user_acted(const InputState& before, const InputState& now) {
    const bool over_our_window = QGuiApplication::topLevelAt(now.mouse) != nullptr;
    const bool mouse = now.mouse != before.mouse || (now.buttons & ~before.buttons) != 0;
    if (mouse && over_our_window) return true;
    if (QGuiApplication::focusWindow() == nullptr) return false;
    return !std::equal(now.keys.begin(), now.keys.end(), before.keys.begin(),
                       [](std::uint8_t down, std::uint8_t was_down) { return (down & ~was_down) == 0; });
}

}  // namespace machine::qt
