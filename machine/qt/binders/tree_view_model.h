#pragma once

#include "platform/controls/tree_view.h"

#include <QAbstractItemModel>
#include <QIcon>
#include <QList>

namespace machine::qt {

/// The nodes of a tree for Qt's views, which read them in place: nothing is copied.
class TreeViewModel : public QAbstractItemModel {
    Q_OBJECT

  public:
    /// Nodes show the pictures by their numbers, counted from 1.
    TreeViewModel(platform::TreeView& tree, QList<QIcon> pictures, QObject* parent)
        : QAbstractItemModel(parent), tree_(&tree), pictures_(std::move(pictures)) {}

    /// To be called before the tree is destroyed. It notifies nobody: the view may be at work, and it is
    /// closed soon anyway.
    void let_go() { tree_ = nullptr; }

    QModelIndex index_of(const platform::TreeNode* node) const;
    /// The node of the index; null for an invalid one.
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
