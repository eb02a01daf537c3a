#pragma once

#include "platform/controls/control.h"
#include "platform/controls/input.h"

#include <vector>

namespace platform {

/// A menu or one of its items. The screen decides which items lie in which menu.
class Menu : public Control {
  public:
    Menu(Form& form, TextView name, Text caption) : Control(form, name), caption_(std::move(caption)) {}
    void accept(ControlVisitor& visitor) override;

    const Text& caption() const { return caption_; }

    bool checked() const { return checked_; }
    /// Raises no event.
    void set_checked(bool checked) { assign(checked_, checked, Aspect::value); }

    UserEvent<> Click{*this};

  private:
    Text caption_;
    bool checked_ = false;
};

/// A row of panels, counted from 1. MouseDown comes before PanelClick and says which mouse button it was.
class StatusBar : public Control {
  public:
    struct Panel {
        Text text;
        Text tool_tip;
        /// Number in the bar's list of pictures, counted from 1; 0 for none.
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

    UserEvent<MouseButton> MouseDown{*this};
    UserEvent<int> PanelClick{*this};

  private:
    std::vector<Panel> panels_;
};

/// A row of tabs, counted from 1. It shows no panel by itself: the form's Click handler does.
class TabStrip : public Control {
  public:
    TabStrip(Form& form, TextView name, std::vector<Text> captions)
        : Control(form, name), captions_(std::move(captions)) {}
    void accept(ControlVisitor& visitor) override;

    const std::vector<Text>& captions() const { return captions_; }
    int selected() const { return selected_; }

    /// Chooses a tab and raises Click, also when the tab was already chosen. Raises RuntimeError 9 for a tab
    /// that does not exist.
    void select(int index);
    void user_select(int index) {
        if (takes_input()) select(index);
    }

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
        /// Stays pressed until another button of its group is pressed.
        bool in_group = false;
        bool pressed = false;
    };

    ToolBar(Form& form, TextView name, std::vector<Button> buttons)
        : Control(form, name), buttons_(std::move(buttons)) {}
    void accept(ControlVisitor& visitor) override;

    int count() const { return static_cast<int>(buttons_.size()); }
    const Button& button(int index) const { return buttons_[static_cast<std::size_t>(index - 1)]; }
    /// Presses the button and releases the others of its group. Raises no event.
    void press(int index);

    UserEvent<int> ButtonClick{*this};

  private:
    std::vector<Button> buttons_;
};

}  // namespace platform
