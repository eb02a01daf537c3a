#pragma once

#include "machine/qt/binders/binder.h"
#include "platform/controls/input.h"

class QAbstractItemView;

namespace machine::qt {

/// What lists and trees have in common: the mouse in their rows, and the menu that a key asks for.
class ItemViewBinder : public WidgetBinder {
  public:
    ItemViewBinder(BoundForm& bound, platform::Control& control, QAbstractItemView& view);

  protected:
    /// Raises a right click at the current row when a key asks for a menu; the mouse's own menu comes with
    /// its button. Keeps the event away from the view.
    bool open_menu(QEvent& event, const platform::UserEvent<platform::MouseButton>& clicked);

    static platform::MouseButton button_of(const QEvent& event);

  private:
    QAbstractItemView& view() const;
};

}  // namespace machine::qt
