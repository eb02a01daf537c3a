#include "machine/qt/binders/binder.h"

#include "machine/qt/typing/composition.h"
#include "machine/qt/typing/text_conversion.h"

#include <QEvent>
#include <QLabel>

namespace machine::qt {

using platform::Aspect;
using platform::Control;

WidgetBinder::WidgetBinder(BoundForm& bound, Control& control, QWidget& widget)
    : Binder(bound, control), control_(control), widget_(widget) {
    widget.installEventFilter(this);
    if (!control.enabled()) refresh(Aspect::enabled);
    if (!control.visible()) refresh(Aspect::visible);
    if (!control.tool_tip().empty()) refresh(Aspect::tool_tip);
    name_by_tool_tip();
    if (control.has_focus()) refresh(Aspect::focus);
}

void WidgetBinder::refresh(Aspect aspect) {
    switch (aspect) {
        case Aspect::enabled:
            return widget_.setEnabled(control_.enabled());
        case Aspect::visible:
            return widget_.setVisible(control_.visible());
        case Aspect::tool_tip:
            return widget_.setToolTip(to_qstring(control_.tool_tip()));
        case Aspect::focus:
            return widget_.setFocus(Qt::OtherFocusReason);
        default:
            return;
    }
}

bool WidgetBinder::eventFilter(QObject* object, QEvent* event) {
    if (!is_bound_live()) return false;
    // The loss of the focus is told by the gain elsewhere: a box or another window takes the focus from the
    // widget, but not from the control.
    if (event->type() == QEvent::FocusIn && object == &widget_) bound().form.move_focus(&control_);
    return is_bound_live() && filter(*object, *event);
}

bool WidgetBinder::filter(QObject&, QEvent&) { return false; }

void WidgetBinder::finish_text() { commit_composition(); }

/// A screen reader has to call the widget something when no label in front of it does.
void WidgetBinder::name_by_tool_tip() {
    if (!widget_.accessibleName().isEmpty() || widget_.toolTip().isEmpty()) return;
    for (const QLabel* label : bound().window.findChildren<QLabel*>()) {
        if (label->buddy() == &widget_) return;
    }
    widget_.setAccessibleName(widget_.toolTip());
}

}  // namespace machine::qt
