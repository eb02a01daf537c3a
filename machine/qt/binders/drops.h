#pragma once

#include "platform/controls/input.h"
#include "platform/ports/files.h"

class QDropEvent;

namespace machine::qt {

/// Tells the other program whether the control takes what is dragged over it.
void answer_drag(QDropEvent& event, bool takes);

/// What is dropped: files, or a text when there are none.
platform::Dropped dropped_by(const QDropEvent& event, const platform::Files& files);

}  // namespace machine::qt
