#pragma once

class QWidget;

namespace machine::qt {

/// Gives the focus to the next of the window's panes, or the one before: the controls that the screen names
/// in the window's list `panes`, in the order of Tab. Those that cannot have the focus are passed over.
/// Returns false in a window without panes.
bool move_to_pane(QWidget& window, bool forward);

}  // namespace machine::qt
