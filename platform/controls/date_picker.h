#pragma once

#include "platform/controls/control.h"
#include "platform/text/calendar.h"

namespace platform {

/// A field for a date. It holds a whole moment; what it shows of it is the day.
class DatePicker : public Control {
  public:
    using Control::Control;
    void accept(ControlVisitor& visitor) override;

    LocalTime value() const { return value_; }
    void set_value(LocalTime value) { assign(value_, value, Aspect::value); }

  private:
    LocalTime value_{};
};

}  // namespace platform
