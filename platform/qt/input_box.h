#pragma once

#include "platform/ports/desktop.h"

class QWidget;

namespace platform::qt {

/// Shows the question in front of the parent and waits for the answer; nothing when the user cancels.
Text ask_for_text(const InputBox& box, QWidget* parent);

}  // namespace platform::qt
