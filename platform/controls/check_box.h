#pragma once

#include "platform/controls/control.h"

namespace platform {

/// A box that is ticked or not.
class CheckBox : public Control {
  public:
    CheckBox(Form& form, TextView name, Text caption) : Control(form, name), caption_(std::move(caption)) {}
    void accept(ControlVisitor& visitor) override;

    const Text& caption() const { return caption_; }

    bool checked() const { return checked_; }
    /// Raises Click when the value changes, by code as by the user.
    void set_checked(bool checked) {
        if (assign(checked_, checked, Aspect::value)) Click.raise();
    }

    Event<> Click;

  private:
    Text caption_;
    bool checked_ = false;
};

}  // namespace platform
