#pragma once

#include "platform/ports/desktop.h"

class QString;
class QWidget;

namespace machine::qt {

/// Shows the box in front of the parent and waits for the answer; `application_title` stands in for a title.
platform::BoxAnswer ask(const platform::MessageBox& box, const QString& application_title, QWidget* parent);

}  // namespace machine::qt
