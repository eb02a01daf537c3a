#pragma once

#include "platform/ports/desktop.h"

class QString;
class QWidget;

namespace platform::qt {

/// Shows the box in front of the parent and waits for the answer; `application_title` stands in for a title.
BoxAnswer ask(const MessageBox& box, const QString& application_title, QWidget* parent);

}  // namespace platform::qt
