#pragma once

#include "platform/controls/control.h"

namespace platform {

/// A menu or an item of one; which items lie in which menu is the screen's.
class Menu : public Control {
  public:
    Menu(Form& form, TextView name, Text caption) : Control(form, name), caption_(std::move(caption)) {}
    void accept(ControlVisitor& visitor) override;

    const Text& caption() const { return caption_; }

    bool checked() const { return checked_; }
    /// No event.
    void set_checked(bool checked) { assign(checked_, checked, Aspect::value); }

    Event<> Click;

  private:
    Text caption_;
    bool checked_ = false;
};

}  // namespace platform
