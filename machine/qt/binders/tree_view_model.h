#pragma once

#include "platform/controls/tree_view.h"

#include <QAbstractItemModel>
#include <QIcon>
#include <QList>

namespace machine::qt {

/// The nodes of a tree as the toolkit's views read them: in place, nothing is copied.
class TreeViewModel : public QAbstractItemModel {
    Q_OBJECT

  public:
    /// The pictures of the nodes, the first for number 1.
    TreeViewModel(platform::TreeView& tree, QList<QIcon> pictures, QObject* parent)
        : QAbstractItemModel(parent), tree_(&tree), pictures_(std::move(pictures)) {}

    /// The tree goes. Nobody is told, since it may go in the midst of the view's own work; the view is closed
    /// anyway.
    void let_go() { tree_ = nullptr; }

    QModelIndex index_of(const platform::TreeNode* node) const;
    /// The node, which the view may show and the user act on; none for an invalid index.
    platform::TreeNode* node_at(const QModelIndex& index) const;

    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;

    void begin_adding(const platform::TreeNode* parent);
    void end_adding() { endInsertRows(); }
    void begin_removing() { beginResetModel(); }
    void end_removing() { endResetModel(); }
    void node_changed(const platform::TreeNode& node) { emit dataChanged(index_of(&node), index_of(&node)); }

  private:
    const std::vector<platform::TreeNode*>& nodes_below(const QModelIndex& parent) const;

    platform::TreeView* tree_;
    QList<QIcon> pictures_;
};

}  // namespace machine::qt
