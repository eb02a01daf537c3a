#include "platform/controls/tree_view.h"

#include <set>

namespace platform {

Text TreeNode::full_path() const {
    Text path = text_;
    for (const TreeNode* above = parent_; above != nullptr; above = above->parent_) {
        path.insert(0, above->text_ + u"/");
    }
    return path;
}

TreeNode& TreeView::add_node(Text key, Text text, int picture, Text tag) {
    return insert(nullptr, std::move(key), std::move(text), picture, std::move(tag));
}

TreeNode& TreeView::add_child(TreeNode& parent, Text key, Text text, int picture, Text tag) {
    return insert(&parent, std::move(key), std::move(text), picture, std::move(tag));
}

TreeNode& TreeView::insert(TreeNode* parent, Text key, Text text, int picture, Text tag) {
    if (nodes_view_ != nullptr) nodes_view_->node_about_to_be_added(parent);
    std::vector<TreeNode*>& siblings = parent != nullptr ? parent->children_ : top_nodes_;
    TreeNode& added = *nodes_.emplace_back(std::make_unique<TreeNode>());
    added.key_ = std::move(key);
    added.text_ = std::move(text);
    added.tag_ = std::move(tag);
    added.picture_ = picture;
    added.parent_ = parent;
    added.position_ = nodes_.size();
    added.row_ = siblings.size();
    siblings.push_back(&added);
    if (nodes_view_ != nullptr) nodes_view_->node_added();
    return added;
}

void TreeView::remove_node(TreeNode& node) {
    if (nodes_view_ != nullptr) nodes_view_->nodes_about_to_be_removed();
    // A node always stands after its parent, so that one pass finds all nodes below.
    std::set<const TreeNode*> going{&node};
    for (const auto& each : nodes_) {
        if (going.contains(each->parent_)) going.insert(each.get());
    }
    if (going.contains(selected_node_)) selected_node_ = nullptr;
    std::erase(node.parent_ != nullptr ? node.parent_->children_ : top_nodes_, &node);
    std::erase_if(nodes_, [&](const auto& each) { return going.contains(each.get()); });
    number_nodes();
    if (nodes_view_ != nullptr) nodes_view_->nodes_removed();
}

void TreeView::clear() {
    if (nodes_view_ != nullptr) nodes_view_->nodes_about_to_be_removed();
    selected_node_ = nullptr;
    top_nodes_.clear();
    nodes_.clear();
    if (nodes_view_ != nullptr) nodes_view_->nodes_removed();
}

void TreeView::number_nodes() {
    for (std::size_t i = 0; i < nodes_.size(); ++i) {
        nodes_[i]->position_ = i + 1;
        for (std::size_t row = 0; row < nodes_[i]->children_.size(); ++row)
            nodes_[i]->children_[row]->row_ = row;
    }
    for (std::size_t row = 0; row < top_nodes_.size(); ++row) top_nodes_[row]->row_ = row;
}

void TreeView::set_text(TreeNode& node, Text text) {
    if (node.text_ == text) return;
    node.text_ = std::move(text);
    if (nodes_view_ != nullptr) nodes_view_->node_changed(node);
}

void TreeView::set_expanded_picture(TreeNode& node, int picture) {
    if (node.expanded_picture_ == picture) return;
    node.expanded_picture_ = picture;
    if (nodes_view_ != nullptr) nodes_view_->node_changed(node);
}

void TreeView::set_expanded(TreeNode& node, bool expanded) {
    if (node.expanded_ == expanded) return;
    node.expanded_ = expanded;
    if (nodes_view_ != nullptr) {
        nodes_view_->node_changed(node);
        nodes_view_->node_expanded(node);
    }
    if (expanded) Expand.raise(node);
}

void TreeView::user_click(TreeNode& node) {
    if (!takes_input()) return;
    selected_node_ = &node;
    NodeClick.raise(node);
}

}  // namespace platform
