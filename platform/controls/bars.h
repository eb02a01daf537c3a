#pragma once

#include "platform/controls/control.h"
#include "platform/controls/input.h"

#include <vector>

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

/// A row of tabs, counted from 1. It shows nothing by itself: the handler of its click shows the panel.
class TabStrip : public Control {
  public:
    TabStrip(Form& form, TextView name, std::vector<Text> captions)
        : Control(form, name), captions_(std::move(captions)) {}
    void accept(ControlVisitor& visitor) override;

    const std::vector<Text>& captions() const { return captions_; }
    int selected() const { return selected_; }

    /// Chooses a tab and raises Click, also for the tab that was chosen already. Run-time error 9 outside the
    /// tabs.
    void select(int index);

    Event<> Click;

  private:
    std::vector<Text> captions_;
    int selected_ = 1;
};

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

    Event<int> ButtonClick;

  private:
    std::vector<Button> buttons_;
};

}  // namespace platform
