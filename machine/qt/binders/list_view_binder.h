#pragma once

#include "machine/qt/binders/item_view_binder.h"
#include "machine/qt/binders/list_rows.h"
#include "platform/controls/list_view.h"

class QKeyEvent;
class QTreeView;

namespace machine::qt {

/// Joins a list with its view. The screen's list `columnWidths` has the widths of the columns in pixels, its
/// list `pictures` the pictures of the rows by their numbers. With `singleSelection` at most one row is
/// selected.
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

    ListRows rows_;
};

}  // namespace machine::qt
