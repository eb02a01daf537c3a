#pragma once

#include "platform/controls/event.h"
#include "platform/text/text.h"

#include <utility>

namespace platform {

class ControlVisitor;
class Form;

/// Which part of a control has changed, for the widget that shows it.
enum class Aspect {
    text,
    caption,
    enabled,
    visible,
    tool_tip,
    picture,
    border,
    colour,
    value,
    rows,
    selection,
    focus,
};

/// The widget's side of a control. A control without one, as in a test of the logic, behaves the same.
class ControlView {
  public:
    virtual ~ControlView() = default;

    /// The control's aspect has a new value; for Aspect::focus the control has just received the focus.
    virtual void refresh(Aspect aspect) = 0;
};

/// A control of a form as a model: the properties that the handlers read and write, and its events. Draws
/// nothing.
///
/// A control made with a form and a name belongs to the form's screen and must have a widget of that name
/// there. One made without is working storage of its form and is never shown.
class Control {
  public:
    Control() = default;
    Control(Form& form, TextView name);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control() = default;

    virtual void accept(ControlVisitor& visitor) = 0;

    const Text& name() const { return name_; }

    bool enabled() const { return enabled_; }
    void set_enabled(bool on) { assign(enabled_, on, Aspect::enabled); }

    /// The control's own setting; the user sees the control only when its containers are visible too.
    bool visible() const { return visible_; }
    void set_visible(bool on);
    void show() { set_visible(true); }
    void hide() { set_visible(false); }
    bool on_screen() const;

    /// Whether the user's input is for the control's form. What the user does to one that takes none is lost.
    bool takes_input() const;

    /// A small state word that the handlers keep with the control. It raises no event and is never shown.
    const Text& tag() const { return tag_; }
    void set_tag(Text tag) { tag_ = std::move(tag); }

    const Text& tool_tip() const { return tool_tip_; }
    void set_tool_tip(Text text) { assign(tool_tip_, std::move(text), Aspect::tool_tip); }

    /// The frame or box that holds the control.
    void set_container(Control& container) { container_ = &container; }

    /// Moves the form's focus here and raises LostFocus and GotFocus. Does nothing on a hidden or disabled
    /// control.
    void set_focus();
    bool has_focus() const;

    Event<> GotFocus;
    Event<> LostFocus;

    void attach(ControlView* view) { view_ = view; }

  protected:
    void refresh(Aspect aspect) const {
        if (view_ != nullptr) view_->refresh(aspect);
    }

    /// Stores the value and refreshes the widget. Returns whether the value has changed.
    template <class T>
    bool assign(T& field, T value, Aspect aspect) {
        if (field == value) return false;
        field = std::move(value);
        refresh(aspect);
        return true;
    }

  private:
    friend class Form;

    Form* form_ = nullptr;
    Text name_;
    const Control* container_ = nullptr;
    ControlView* view_ = nullptr;
    Text tag_;
    Text tool_tip_;
    bool enabled_ = true;
    bool visible_ = true;
};

/// An event of a control that the user alone raises. While the control takes no input nothing happens.
template <class... Args>
class UserEvent : private Event<Args...> {
  public:
    explicit UserEvent(const Control& control) : control_(control) {}

    using Event<Args...>::connect;
    using Event<Args...>::connected;

    void raise(Args... args) const {
        if (control_.takes_input()) Event<Args...>::raise(args...);
    }

  private:
    const Control& control_;
};

}  // namespace platform
