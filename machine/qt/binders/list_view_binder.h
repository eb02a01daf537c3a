#pragma once

#include "machine/qt/binders/item_view_binder.h"
#include "machine/qt/binders/list_rows.h"
#include "machine/qt/widgets/column_widths.h"
#include "platform/controls/list_view.h"

class QDropEvent;
class QHelpEvent;
class QKeyEvent;
class QTreeView;

namespace machine::qt {

/// Joins a list with its view. The screen's list `columnWidths` has the widths of its columns (see
/// ColumnWidths), its list `pictures` the pictures of the rows by their numbers. With `singleSelection` at
/// most one row is selected.
class ListViewBinder : public BinderOf<platform::ListView, QTreeView, ItemViewBinder> {
  public:
    ListViewBinder(BoundForm& bound, platform::ListView& control, QTreeView& view);

    void release() override;

  private:
    void show(platform::Aspect aspect) override;
    bool filter(QObject& object, QEvent& event) override;
    bool press_key(QKeyEvent& event);
    void release_key(const QKeyEvent& event);
    void toggle_check();
    bool take_drag(QDropEvent& event);
    bool take_drop(QDropEvent& event);
    bool click_header(const QEvent& event);
    void show_tip(const QHelpEvent& event);
    bool paint_placeholder();
    void describe();

    ListRows rows_;
    ColumnWidths widths_;
    bool header_box_pressed_ = false;
};

}  // namespace machine::qt
