#include "machine/qt/binders/item_view_binder.h"

#include <QAbstractItemView>
#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QScopeGuard>

namespace machine::qt {

using platform::MouseButton;

ItemViewBinder::ItemViewBinder(BoundForm& bound, platform::Control& control, QAbstractItemView& view)
    : WidgetBinder(bound, control, view) {
    view.viewport()->installEventFilter(this);
}

bool ItemViewBinder::open_menu(QEvent& event, const platform::UserEvent<MouseButton>& clicked) {
    event.accept();
    if (static_cast<QContextMenuEvent&>(event).reason() != QContextMenuEvent::Keyboard) return true;
    const QRect row = view().visualRect(view().currentIndex());
    bound().popup_point = view().viewport()->mapToGlobal(row.bottomLeft());
    const auto forget = qScopeGuard([this] { bound().popup_point.reset(); });
    clicked.raise(MouseButton::right);
    return true;
}

MouseButton ItemViewBinder::button_of(const QEvent& event) {
    const bool right = static_cast<const QMouseEvent&>(event).button() == Qt::RightButton;
    return right ? MouseButton::right : MouseButton::left;
}

QAbstractItemView& ItemViewBinder::view() const { return static_cast<QAbstractItemView&>(shown()); }

}  // namespace machine::qt
