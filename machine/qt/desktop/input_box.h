#pragma once

#include "platform/ports/desktop.h"

class QWidget;

namespace machine::qt {

/// Shows the question in front of the parent and waits for the text; empty when the user cancels.
platform::Text ask_for_text(const platform::InputBox& box, QWidget* parent);

}  // namespace machine::qt
