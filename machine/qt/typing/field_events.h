#pragma once

#include "platform/controls/fields.h"

#include <functional>

class QEvent;
class QWidget;

namespace machine::qt {

/// Passes keys and composition steps on to a field of one line, to be called from an event filter of it. A
/// key is told of before it reaches the field and is kept away when it is swallowed; `working` is told of the
/// beginning and the end of the field's own work on each event, since edits are to be read when that is over.
/// Returns what the filter has to return.
bool filter_field_event(QWidget& field, QEvent& event,
                        const std::function<void(platform::KeyPressed&)>& press_key,
                        const std::function<void(bool begins)>& working);

}  // namespace machine::qt
