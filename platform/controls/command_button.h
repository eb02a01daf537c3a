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

    Event<> Click;

  private:
    Text caption_;
};

}  // namespace platform
