#pragma once

#include "platform/controls/fields.h"

#include <functional>

class QEvent;
class QWidget;

namespace machine::qt {

/// Passes keys and composition steps on to a field of one line; to be called from its event filter.
/// `press_key` gets a key before the field does and may swallow it. `working` is called before and after the
/// field handles an event, since its text should be read afterwards. Returns what the filter has to return.
bool filter_field_event(QWidget& field, QEvent& event,
                        const std::function<void(platform::KeyPressed&)>& press_key,
                        const std::function<void(bool begins)>& working);

}  // namespace machine::qt
