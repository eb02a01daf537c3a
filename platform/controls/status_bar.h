#pragma once

#include "platform/controls/control.h"

#include <vector>

namespace platform {

enum class MouseButton { left, right };

/// A bar of panels, counted from 1. A click on a panel comes after the mouse-down that tells the button.
class StatusBar : public Control {
  public:
    struct Panel {
        Text text;
        Text tool_tip;
        /// Of the bar's picture list, counted from 1; 0 is none.
        int picture = 0;
    };

    StatusBar(Form& form, TextView name, int panels)
        : Control(form, name), panels_(static_cast<std::size_t>(panels)) {}
    void accept(ControlVisitor& visitor) override;

    int count() const { return static_cast<int>(panels_.size()); }
    const Panel& panel(int index) const { return panels_[static_cast<std::size_t>(index - 1)]; }
    void set_panel_text(int index, Text text);
    void set_panel_tool_tip(int index, Text text);
    void set_panel_picture(int index, int picture);

    Event<MouseButton> MouseDown;
    Event<int> PanelClick;

  private:
    std::vector<Panel> panels_;
};

}  // namespace platform
