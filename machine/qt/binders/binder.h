#pragma once

#include "platform/controls/control.h"
#include "platform/controls/form.h"
#include "platform/ports/files.h"

#include <QObject>
#include <QPoint>
#include <QWidget>
#include <optional>

namespace machine::qt {

/// What the binders of one window have in common.
struct BoundForm {
    platform::Form& form;
    QWidget& window;
    platform::Files& files;
    /// Where to open a menu that was asked for with a key.
    std::optional<QPoint> popup_point;
    /// False once the form has closed: the form may be destroyed before its window.
    bool live = true;
};

/// Joins one control with the object of the window that shows it. It lives as long as the window.
class Binder : public QObject, public platform::ControlView {
  public:
    Binder(BoundForm& bound, platform::Control& control, QObject& shown)
        : bound_(bound), control_(control), shown_(shown) {
        control.attach(this);
    }

    /// Parts with the control, which may be destroyed afterwards.
    virtual void release() { control_.attach(nullptr); }

  protected:
    BoundForm& bound() const { return bound_; }
    bool is_bound_live() const { return bound_.live; }
    platform::Control& control() const { return control_; }
    QObject& shown() const { return shown_; }

  private:
    BoundForm& bound_;
    platform::Control& control_;
    QObject& shown_;
};

/// Joins a control with a widget: whether it is enabled and visible, its tool tip and the focus.
class WidgetBinder : public Binder {
  public:
    WidgetBinder(BoundForm& bound, platform::Control& control, QWidget& widget);

    void refresh(platform::Aspect aspect) final;

  protected:
    QWidget& widget() const { return static_cast<QWidget&>(shown()); }

    /// Shows an aspect that not every control has.
    virtual void show(platform::Aspect aspect);

    bool eventFilter(QObject* object, QEvent* event) final;

    /// Looks at an event before the widget; true keeps it away from the widget.
    virtual bool filter(QObject& object, QEvent& event);

    /// Does what the user wants of a control that is no text field, after finishing the text being typed.
    template <class Action>
    void act(Action&& action) {
        finish_text();
        if (is_bound_live()) action();
    }

  private:
    void finish_text();
    void name_by_tool_tip();
};

/// A binder that knows the kind of its control and of what shows it. The binder of each kind derives from it
/// and adds what only that kind does.
template <class ControlType, class ShownType, class Base = WidgetBinder>
class BinderOf : public Base {
  public:
    using Shown = ShownType;

    BinderOf(BoundForm& bound, ControlType& control, Shown& shown) : Base(bound, control, shown) {}

  protected:
    ControlType& control() const { return static_cast<ControlType&>(Base::control()); }
    Shown& widget() const { return static_cast<Shown&>(Base::shown()); }
};

}  // namespace machine::qt
