#pragma once

#include "platform/text/text.h"

#include <vector>

namespace platform {

enum class MouseButton { left, right };

/// What the user drags from another program onto a control: a text, or files by their paths.
struct Dropped {
    Text text;
    std::vector<Text> files;
};

/// Character codes of the keys that handlers ask for.
inline constexpr int KEY_CTRL_A = 1;
inline constexpr int KEY_BACKSPACE = 8;
inline constexpr int KEY_ENTER = 13;
/// Key codes, not characters, as key-down and key-up events have them.
inline constexpr int KEY_PAGE_UP = 33;
inline constexpr int KEY_PAGE_DOWN = 34;
inline constexpr int KEY_END = 35;
inline constexpr int KEY_HOME = 36;
inline constexpr int KEY_UP = 38;
inline constexpr int KEY_DOWN = 40;
inline constexpr int KEY_DELETE = 46;

/// A key on its way to a control. A handler that sets the code to 0 swallows it.
struct KeyPressed {
    int code = 0;

    void swallow() { code = 0; }
    bool swallowed() const { return code == 0; }
};

}  // namespace platform
