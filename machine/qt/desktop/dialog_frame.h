#pragma once

#include <Qt>

namespace machine::qt {

/// The frame of a window that stands in front of another: it can be closed, but not minimised, which would
/// take the whole program off the screen.
inline constexpr Qt::WindowFlags DIALOG_FRAME =
    Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint;

}  // namespace machine::qt
