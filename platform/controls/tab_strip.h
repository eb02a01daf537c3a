#pragma once

#include "platform/controls/control.h"

#include <vector>

namespace platform {

/// A row of tabs, counted from 1. It shows nothing by itself: the handler of its click shows the panel.
class TabStrip : public Control {
  public:
    TabStrip(Form& form, TextView name, std::vector<Text> captions)
        : Control(form, name), captions_(std::move(captions)) {}
    void accept(ControlVisitor& visitor) override;

    const std::vector<Text>& captions() const { return captions_; }
    int selected() const { return selected_; }
    const Text& selected_caption() const { return captions_[static_cast<std::size_t>(selected_ - 1)]; }

    /// Chooses a tab and raises Click, also for the tab that was chosen already. Run-time error 9 outside the
    /// tabs.
    void select(int index);

    Event<> Click;

  private:
    std::vector<Text> captions_;
    int selected_ = 1;
};

}  // namespace platform
