#pragma once

#include "platform/controls/control.h"
#include "platform/controls/input.h"

namespace platform {

/// A panel that holds other controls.
class Frame : public Control {
  public:
    using Control::Control;
    Frame(Form& form, TextView name, Text caption) : Control(form, name), caption_(std::move(caption)) {}
    void accept(ControlVisitor& visitor) override;

    const Text& caption() const { return caption_; }

    /// Without a handler nothing can be dropped here.
    UserEvent<const Dropped&> Drop{*this};

  private:
    Text caption_;
};

/// A box with a border of its own that holds other controls and can take the focus.
class PictureBox : public Control {
  public:
    using Control::Control;
    void accept(ControlVisitor& visitor) override;

    bool border() const { return border_; }
    void set_border(bool border) { assign(border_, border, Aspect::border); }

    UserEvent<> Click{*this};

  private:
    bool border_ = true;
};

}  // namespace platform
