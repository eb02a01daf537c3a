#pragma once

class QKeyEvent;

namespace machine::qt {

/// The character code of a key as handlers of KeyPress count it: Enter 13, Backspace 8, Ctrl+A 1. 0 for a key
/// that makes no character and for Escape, which is the form's.
int key_code(const QKeyEvent& event);

/// The code of a key that moves through rows or pages, 0 for any other.
int moving_key_code(const QKeyEvent& event);

}  // namespace machine::qt
