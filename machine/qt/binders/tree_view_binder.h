#pragma once

#include "machine/qt/binders/item_view_binder.h"
#include "machine/qt/binders/tree_view_model.h"

class QTreeView;

namespace machine::qt {

/// Joins a tree with its view. The screen's list `pictures` names the nodes' pictures.
class TreeViewBinder : public BinderOf<platform::TreeView, QTreeView, ItemViewBinder>,
                       private platform::NodesView {
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
    void choose(const QModelIndex& index);
    void click(const QModelIndex& index);
    void expand(const QModelIndex& index, bool expanded);
    void keep_current();

    TreeViewModel model_;
    /// The binder itself moves the view to a node.
    bool showing_ = false;
    /// The press of the present click has chosen the node already.
    bool chosen_by_press_ = false;
};

}  // namespace machine::qt
