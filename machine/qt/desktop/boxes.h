#pragma once

#include "platform/ports/desktop.h"

class QString;
class QWidget;

namespace machine::qt {

/// Shows the box in front of the parent and waits for the answer. A box without a title has the
/// application's.
platform::BoxAnswer ask(const platform::MessageBox& box, const QString& application_title, QWidget* parent);

/// Shows the question in front of the parent and waits for the text; empty when the user cancels.
platform::Text ask_for_text(const platform::InputBox& box, QWidget* parent);

}  // namespace machine::qt
