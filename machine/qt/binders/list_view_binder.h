#pragma once

#include "machine/qt/binders/binder.h"
#include "machine/qt/binders/list_rows.h"
#include "platform/controls/list_view.h"

class QContextMenuEvent;
class QKeyEvent;
class QTreeView;

namespace machine::qt {

/// Joins a list with its view. The screen's list `columnWidths` has the widths of the columns in pixels, its
/// list `smallIcons` the pictures of the rows by their numbers; where it says `singleSelection`, one row at
/// most is selected.
class ListViewBinder : public WidgetBinder {
  public:
    ListViewBinder(BoundForm& bound, platform::ListView& control, QTreeView& view);

    void release() override;

  private:
    bool filter(QObject& object, QEvent& event) override;
    bool press_key(QKeyEvent& event);
    void release_key(const QKeyEvent& event);
    void open_menu(const QContextMenuEvent& event);
    void toggle_check();

    platform::ListView& control_;
    QTreeView& view_;
    ListRows rows_;
};

}  // namespace machine::qt
