#pragma once

#include "platform/controls/control.h"

#include <vector>

namespace platform {

/// A bar of buttons, counted from 1.
class ToolBar : public Control {
  public:
    struct Button {
        /// A separator has no caption.
        Text caption;
        /// Stays pressed until another one of its group is.
        bool in_group = false;
        bool pressed = false;
        bool enabled = true;
    };

    ToolBar(Form& form, TextView name, std::vector<Button> buttons)
        : Control(form, name), buttons_(std::move(buttons)) {}
    void accept(ControlVisitor& visitor) override;

    int count() const { return static_cast<int>(buttons_.size()); }
    const Button& button(int index) const { return buttons_[static_cast<std::size_t>(index - 1)]; }
    /// Presses the button and lets the others of the group out; raises nothing.
    void press(int index);
    void set_button_enabled(int index, bool enabled);

    Event<int> ButtonClick;

  private:
    std::vector<Button> buttons_;
};

}  // namespace platform
