#pragma once

#include "platform/controls/control.h"

namespace platform {

/// How far a long operation is, from 0 to 100.
class ProgressBar : public Control {
  public:
    using Control::Control;
    void accept(ControlVisitor& visitor) override;

    int value() const { return value_; }
    /// Run-time error 380 outside 0 to 100.
    void set_value(int value);

  private:
    int value_ = 0;
};

}  // namespace platform
