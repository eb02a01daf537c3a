#include "machine/qt/desktop/input_watch.h"

#include "machine/qt/desktop/x_server.h"

#include <QCursor>
#include <QGuiApplication>
#include <QWindow>
#include <algorithm>
#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

namespace machine::qt {

namespace {

/// To ask is a journey to the X server and back; a user is not quicker than this, in milliseconds.
constexpr int BETWEEN_QUESTIONS = 10;

constexpr std::uint32_t ALL_BUTTONS =
    XCB_BUTTON_MASK_1 | XCB_BUTTON_MASK_2 | XCB_BUTTON_MASK_3 | XCB_BUTTON_MASK_4 | XCB_BUTTON_MASK_5;

template <class Reply>
using Freed = std::unique_ptr<Reply, decltype(&std::free)>;

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
