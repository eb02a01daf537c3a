#pragma once

#include "platform/controls/control.h"

namespace platform {

/// A push button; a "&" in the caption marks its key.
class CommandButton : public Control {
  public:
    CommandButton(Form& form, TextView name, Text caption)
        : Control(form, name), caption_(std::move(caption)) {}
    void accept(ControlVisitor& visitor) override;

    const Text& caption() const { return caption_; }
    void set_caption(Text caption) { assign(caption_, std::move(caption), Aspect::caption); }

    UserEvent<> Click{*this};

  private:
    Text caption_;
};

/// A check box, ticked or not.
class CheckBox : public Control {
  public:
    CheckBox(Form& form, TextView name, Text caption) : Control(form, name), caption_(std::move(caption)) {}
    void accept(ControlVisitor& visitor) override;

    const Text& caption() const { return caption_; }

    bool checked() const { return checked_; }
    /// Raises Click when the value changes, whether the user or code changes it.
    void set_checked(bool checked) {
        if (assign(checked_, checked, Aspect::value)) Click.raise();
    }
    void user_check(bool checked) {
        if (takes_input()) set_checked(checked);
    }

    Event<> Click;

  private:
    Text caption_;
    bool checked_ = false;
};

/// One choice of several. The form's handlers turn the others of its group off.
class OptionButton : public Control {
  public:
    OptionButton(Form& form, TextView name, Text caption)
        : Control(form, name), caption_(std::move(caption)) {}
    void accept(ControlVisitor& visitor) override;

    const Text& caption() const { return caption_; }

    bool chosen() const { return chosen_; }
    /// Raises Click when the option becomes the chosen one, whether the user or code chooses it.
    void set_chosen(bool chosen) {
        if (assign(chosen_, chosen, Aspect::value) && chosen) Click.raise();
    }
    void user_choose() {
        if (takes_input()) set_chosen(true);
    }

    Event<> Click;

  private:
    Text caption_;
    bool chosen_ = false;
};

}  // namespace platform
