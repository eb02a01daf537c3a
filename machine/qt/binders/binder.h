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
    /// Where a menu that was asked for by a key belongs.
    std::optional<QPoint> popup_point;
    /// Over when the form has closed: the form may go before its window.
    bool live = true;
};

/// Joins one control with what shows it in the window. It lives as long as the window.
class Binder : public QObject, public platform::ControlView {
  public:
    Binder(BoundForm& bound, platform::Control& control) : bound_(bound), control_(control) {
        control.attach(this);
    }

    /// Parts with the control, which may be destroyed afterwards.
    virtual void release() { control_.attach(nullptr); }

  protected:
    BoundForm& bound() const { return bound_; }
    bool is_bound_live() const { return bound_.live; }

  private:
    BoundForm& bound_;
    platform::Control& control_;
};

/// Joins a control with a widget: whether it is enabled and visible, its tool tip and the focus.
class WidgetBinder : public Binder {
  public:
    WidgetBinder(BoundForm& bound, platform::Control& control, QWidget& widget);

    void refresh(platform::Aspect aspect) override;

  protected:
    bool eventFilter(QObject* object, QEvent* event) final;

    /// Looks at an event before the widget; true keeps it away from the widget.
    virtual bool filter(QObject& object, QEvent& event);

    /// Does what the user wants of a control that is no text field, on finished text.
    template <class Action>
    void act(Action&& action) {
        finish_text();
        if (is_bound_live()) action();
    }

  private:
    void finish_text();
    void name_by_tool_tip();

    platform::Control& control_;
    QWidget& widget_;
};

}  // namespace machine::qt
