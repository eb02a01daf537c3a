#pragma once

#include "platform/controls/control.h"
#include "platform/controls/input.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace platform {

/// A node of a tree, with the nodes below it.
class TreeNode {
  public:
    const Text& key() const { return key_; }
    const Text& text() const { return text_; }
    const Text& tag() const { return tag_; }
    /// The picture that shows now, counted from 1.
    int picture() const { return expanded_ && expanded_picture_ != 0 ? expanded_picture_ : picture_; }
    bool expanded() const { return expanded_; }
    const TreeNode* parent() const { return parent_; }
    const std::vector<TreeNode*>& children() const { return children_; }
    /// Position among all nodes of the tree in the order in which they were added, counted from 1.
    std::size_t position() const { return position_; }
    /// Position among its siblings, counted from 0.
    std::size_t row() const { return row_; }
    /// The texts from the top down to this node, joined by "/".
    Text full_path() const;

  private:
    friend class TreeView;

    Text key_;
    Text text_;
    Text tag_;
    int picture_ = 0;
    int expanded_picture_ = 0;
    bool expanded_ = false;
    TreeNode* parent_ = nullptr;
    std::vector<TreeNode*> children_;
    std::size_t position_ = 0;
    std::size_t row_ = 0;
};

/// The widget's side of a tree's nodes: it reads them in place, and the tree calls it when they change.
class NodesView {
  public:
    virtual ~NodesView() = default;

    /// A node is about to be added after the last child of `parent`, or at the top level.
    virtual void node_about_to_be_added(const TreeNode* parent) = 0;
    virtual void node_added() = 0;
    /// Nodes are about to go. The widget reads all nodes anew afterwards.
    virtual void nodes_about_to_be_removed() = 0;
    virtual void nodes_removed() = 0;
    virtual void node_changed(const TreeNode& node) = 0;
    virtual void node_expanded(const TreeNode& node) = 0;
};

/// A tree of nodes with pictures, one of them selected. The user cannot edit the texts.
class TreeView : public Control {
  public:
    using Control::Control;
    void accept(ControlVisitor& visitor) override;

    /// Adds a node at the top level.
    TreeNode& add_node(Text key, Text text, int picture, Text tag);
    TreeNode& add_child(TreeNode& parent, Text key, Text text, int picture, Text tag);
    /// Removes the node with all nodes below it.
    void remove_node(TreeNode& node);
    void clear();

    std::size_t node_count() const { return nodes_.size(); }
    /// The node at that position.
    TreeNode& node(std::size_t position) { return *nodes_[position - 1]; }
    const TreeNode& node(std::size_t position) const { return *nodes_[position - 1]; }
    const std::vector<TreeNode*>& top_nodes() const { return top_nodes_; }

    void set_text(TreeNode& node, Text text);
    /// The picture of the node while it is expanded.
    void set_expanded_picture(TreeNode& node, int picture);
    /// Raises Expand when the node was not expanded before.
    void set_expanded(TreeNode& node, bool expanded);

    /// The node that the user chose last; none at first and after it has gone.
    const TreeNode* selected_node() const { return selected_node_; }

    /// The widget that shows the nodes, beside the one that shows the control's other aspects.
    void attach_nodes(NodesView* view) { nodes_view_ = view; }

    /// The user chose the node, by a click, by a key, or once more.
    void user_click(TreeNode& node);

    Event<TreeNode&> NodeClick;
    Event<TreeNode&> Expand;
    UserEvent<MouseButton> MouseDown{*this};

  private:
    TreeNode& insert(TreeNode* parent, Text key, Text text, int picture, Text tag);
    void number_nodes();

    NodesView* nodes_view_ = nullptr;
    std::vector<std::unique_ptr<TreeNode>> nodes_;
    std::vector<TreeNode*> top_nodes_;
    const TreeNode* selected_node_ = nullptr;
};

}  // namespace platform
