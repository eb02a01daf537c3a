#pragma once

#include <QString>

namespace machine::qt {

/// Shows a note at the desktop's edge for a while. Nothing where the desktop has no place for notes.
void send_notification(const QString& title, const QString& text);

}  // namespace machine::qt
