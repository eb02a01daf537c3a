#pragma once

#include "machine/qt/binders/binder.h"
#include "machine/qt/binders/tree_view_model.h"

class QContextMenuEvent;
class QTreeView;

namespace machine::qt {

/// Joins a tree with its view; the screen's list `pictures` has the names of the nodes' pictures.
class TreeViewBinder : public WidgetBinder, private platform::NodesView {
  public:
    TreeViewBinder(BoundForm& bound, platform::TreeView& control, QTreeView& view);

    void release() override;

  private:
    void node_about_to_be_added(const platform::TreeNode* parent) override;
    void node_added() override;
    void nodes_about_to_be_removed() override;
    void nodes_removed() override;
    void node_changed(const platform::TreeNode& node) override;
    void node_expanded(const platform::TreeNode& node) override;

    bool filter(QObject& object, QEvent& event) override;
    bool press_mouse(QEvent& event);
    void open_menu(const QContextMenuEvent& event);
    void choose(const QModelIndex& index);
    void click(const QModelIndex& index);
    void expand(const QModelIndex& index, bool expanded);
    void keep_current();

    platform::TreeView& control_;
    QTreeView& view_;
    TreeViewModel model_;
    /// The view turns to a node by itself.
    bool showing_ = false;
    /// The click that is under way has chosen its node already, as the button went down.
    bool chosen_by_press_ = false;
};

}  // namespace machine::qt
