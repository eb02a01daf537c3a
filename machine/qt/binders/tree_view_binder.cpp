#include "machine/qt/binders/tree_view_binder.h"

#include "machine/qt/look/late_icon.h"

#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QTreeView>

namespace machine::qt {

using platform::TreeNode;

namespace {

void set_up_tree(QTreeView& view) {
    view.setHeaderHidden(true);
    view.setUniformRowHeights(true);
    view.setEditTriggers(QAbstractItemView::NoEditTriggers);
    view.setSelectionMode(QAbstractItemView::SingleSelection);
}

}  // namespace

TreeViewBinder::TreeViewBinder(BoundForm& bound, platform::TreeView& control, QTreeView& view)
    : BinderOf(bound, control, view), model_(control, pictures_of(view), this) {
    set_up_tree(view);
    view.setModel(&model_);
    control.attach_nodes(this);
    nodes_removed();
    connect(&view, &QTreeView::clicked, this, &TreeViewBinder::click);
    connect(&view, &QTreeView::expanded, this, [this](const QModelIndex& index) { expand(index, true); });
    connect(&view, &QTreeView::collapsed, this, [this](const QModelIndex& index) { expand(index, false); });
    connect(view.selectionModel(), &QItemSelectionModel::currentChanged, this, &TreeViewBinder::choose);
}

void TreeViewBinder::release() {
    control().attach_nodes(nullptr);
    model_.let_go();
    WidgetBinder::release();
}

void TreeViewBinder::node_about_to_be_added(const TreeNode* parent) { model_.begin_adding(parent); }

void TreeViewBinder::node_added() {
    model_.end_adding();
    keep_current();
}

void TreeViewBinder::nodes_about_to_be_removed() { model_.begin_removing(); }

/// The reset has closed all nodes in the view and left none current.
void TreeViewBinder::nodes_removed() {
    model_.end_removing();
    for (std::size_t position = 1; position <= control().node_count(); ++position) {
        if (control().node(position).expanded()) node_expanded(control().node(position));
    }
    keep_current();
}

void TreeViewBinder::node_changed(const TreeNode& node) { model_.node_changed(node); }

void TreeViewBinder::node_expanded(const TreeNode& node) {
    widget().setExpanded(model_.index_of(&node), node.expanded());
}

/// Keeps a current node: Qt crashes when a screen reader asks for the current node of a view that has none.
void TreeViewBinder::keep_current() {
    if (widget().currentIndex().isValid() || control().node_count() == 0) return;
    const QScopedValueRollback<bool> showing(showing_, true);
    const TreeNode* selected = control().selected_node();
    const QModelIndex index = model_.index_of(selected != nullptr ? selected : &control().node(1));
    widget().selectionModel()->setCurrentIndex(
        index, selected != nullptr ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate);
}

bool TreeViewBinder::filter(QObject& object, QEvent& event) {
    switch (event.type()) {
        case QEvent::MouseButtonPress:
            return &object == widget().viewport() && press_mouse(event);
        case QEvent::MouseMove:
            // Dragging would choose nodes that were not clicked.
            return static_cast<QMouseEvent&>(event).buttons() != Qt::NoButton;
        case QEvent::ContextMenu:
            return open_menu(event, control().MouseDown);
        default:
            return false;
    }
}

/// The right button opens a menu and leaves the chosen node as it is.
bool TreeViewBinder::press_mouse(QEvent& event) {
    chosen_by_press_ = false;
    act([&] { control().MouseDown.raise(button_of(event)); });
    return button_of(event) == platform::MouseButton::right || !is_bound_live();
}

/// Another node is chosen when the button goes down; a click on the node that is current already counts when
/// it goes up.
void TreeViewBinder::choose(const QModelIndex& index) {
    TreeNode* node = model_.node_at(index);
    if (showing_ || node == nullptr || !is_bound_live()) return;
    chosen_by_press_ = true;
    act([&] { control().user_click(*node); });
}

void TreeViewBinder::click(const QModelIndex& index) {
    if (!chosen_by_press_) choose(index);
}

void TreeViewBinder::expand(const QModelIndex& index, bool expanded) {
    TreeNode* node = model_.node_at(index);
    if (node != nullptr && is_bound_live()) control().set_expanded(*node, expanded);
}

}  // namespace machine::qt
