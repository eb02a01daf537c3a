#include "machine/qt/binders/binder.h"

#include "machine/qt/typing/composition.h"
#include "machine/qt/typing/conversion.h"

#include <QEvent>
#include <QLabel>

namespace machine::qt {

using platform::Aspect;

WidgetBinder::WidgetBinder(BoundForm& bound, platform::Control& control, QWidget& widget)
    : Binder(bound, control, widget) {
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
            return widget().setEnabled(control().enabled());
        case Aspect::visible:
            return widget().setVisible(control().visible());
        case Aspect::tool_tip:
            return widget().setToolTip(to_qstring(control().tool_tip()));
        case Aspect::focus:
            return widget().setFocus(Qt::OtherFocusReason);
        default:
            return show(aspect);
    }
}

void WidgetBinder::show(Aspect) {}

bool WidgetBinder::eventFilter(QObject* object, QEvent* event) {
    if (!is_bound_live()) return false;
    // A control loses the focus when another control gets it, never by FocusOut: the user has not left a
    // field because a box or another window is in front of it.
    if (event->type() == QEvent::FocusIn && object == &widget()) bound().form.move_focus(&control());
    return is_bound_live() && filter(*object, *event);
}

bool WidgetBinder::filter(QObject&, QEvent&) { return false; }

void WidgetBinder::finish_text() { commit_composition(); }

/// A screen reader needs a name for a widget that has no label in front of it. A tip of whole sentences
/// describes what the caption names.
void WidgetBinder::name_by_tool_tip() {
    const QString tip = widget().toolTip();
    if (!widget().accessibleName().isEmpty() || tip.isEmpty() || tip.contains(u'.')) return;
    for (const QLabel* label : bound().window.findChildren<QLabel*>()) {
        if (label->buddy() == &widget()) return;
    }
    widget().setAccessibleName(tip);
}

}  // namespace machine::qt
