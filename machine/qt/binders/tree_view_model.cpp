#include "machine/qt/binders/tree_view_model.h"

#include "machine/qt/typing/conversion.h"

namespace machine::qt {

using platform::TreeNode;

QModelIndex TreeViewModel::index_of(const TreeNode* node) const {
    return node == nullptr ? QModelIndex() : createIndex(static_cast<int>(node->row()), 0, node);
}

TreeNode* TreeViewModel::node_at(const QModelIndex& index) const {
    return tree_ == nullptr ? nullptr : static_cast<TreeNode*>(index.internalPointer());
}

const std::vector<TreeNode*>& TreeViewModel::nodes_below(const QModelIndex& parent) const {
    const TreeNode* node = node_at(parent);
    return node == nullptr ? tree_->top_nodes() : node->children();
}

QModelIndex TreeViewModel::index(int row, int column, const QModelIndex& parent) const {
    if (!hasIndex(row, column, parent)) return QModelIndex();
    return index_of(nodes_below(parent)[static_cast<std::size_t>(row)]);
}

QModelIndex TreeViewModel::parent(const QModelIndex& index) const {
    const TreeNode* node = node_at(index);
    return node == nullptr ? QModelIndex() : index_of(node->parent());
}

int TreeViewModel::rowCount(const QModelIndex& parent) const {
    return tree_ == nullptr ? 0 : static_cast<int>(nodes_below(parent).size());
}

int TreeViewModel::columnCount(const QModelIndex&) const { return 1; }

QVariant TreeViewModel::data(const QModelIndex& index, int role) const {
    const TreeNode* node = node_at(index);
    if (node == nullptr) return QVariant();
    if (role == Qt::DisplayRole) return to_qstring(node->text());
    if (role == Qt::DecorationRole) return pictures_.value(node->picture() - 1);
    return QVariant();
}

void TreeViewModel::begin_adding(const TreeNode* parent) {
    const QModelIndex above = index_of(parent);
    const int row = rowCount(above);
    beginInsertRows(above, row, row);
}

}  // namespace machine::qt
