#include "machine/qt/binders/tree_view_binder.h"

#include "machine/qt/look/late_icon.h"

#include <QContextMenuEvent>
#include <QScopeGuard>
#include <QScopedValueRollback>
#include <QTreeView>

namespace machine::qt {

using platform::MouseButton;
using platform::TreeNode;
using platform::TreeView;

namespace {

QList<QIcon> pictures_of(const QTreeView& view) {
    QList<QIcon> pictures;
    for (const QString& name : view.property("pictures").toStringList()) pictures.append(late_icon(name));
    return pictures;
}

void set_up(QTreeView& view) {
    view.setHeaderHidden(true);
    view.setUniformRowHeights(true);
    view.setEditTriggers(QAbstractItemView::NoEditTriggers);
    view.setSelectionMode(QAbstractItemView::SingleSelection);
}

}  // namespace

TreeViewBinder::TreeViewBinder(BoundForm& bound, TreeView& control, QTreeView& view)
    : WidgetBinder(bound, control, view),
      control_(control),
      view_(view),
      model_(control, pictures_of(view), this) {
    set_up(view);
    view.setModel(&model_);
    control.attach_nodes(this);
    nodes_removed();
    view.viewport()->installEventFilter(this);
    connect(&view, &QTreeView::clicked, this, &TreeViewBinder::click);
    connect(&view, &QTreeView::expanded, this, [this](const QModelIndex& index) { expand(index, true); });
    connect(&view, &QTreeView::collapsed, this, [this](const QModelIndex& index) { expand(index, false); });
    connect(view.selectionModel(), &QItemSelectionModel::currentChanged, this, &TreeViewBinder::choose);
}

void TreeViewBinder::release() {
    control_.attach_nodes(nullptr);
    model_.let_go();
    WidgetBinder::release();
}

void TreeViewBinder::node_about_to_be_added(const TreeNode* parent) { model_.begin_adding(parent); }

void TreeViewBinder::node_added() {
    model_.end_adding();
    keep_current();
}

void TreeViewBinder::nodes_about_to_be_removed() { model_.begin_removing(); }

/// The view has forgotten everything about its nodes.
void TreeViewBinder::nodes_removed() {
    model_.end_removing();
    for (std::size_t position = 1; position <= control_.node_count(); ++position) {
        if (control_.node(position).expanded()) node_expanded(control_.node(position));
    }
    keep_current();
}

void TreeViewBinder::node_changed(const TreeNode& node) { model_.node_changed(node); }

void TreeViewBinder::node_expanded(const TreeNode& node) {
    view_.setExpanded(model_.index_of(&node), node.expanded());
}

/// A view with nodes but without a current one brings the toolkit down when a screen reader asks for it.
void TreeViewBinder::keep_current() {
    if (view_.currentIndex().isValid() || control_.node_count() == 0) return;
    const QScopedValueRollback<bool> showing(showing_, true);
    const TreeNode* selected = control_.selected_node();
    const QModelIndex index = model_.index_of(selected != nullptr ? selected : &control_.node(1));
    view_.selectionModel()->setCurrentIndex(
        index, selected != nullptr ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate);
}

bool TreeViewBinder::filter(QObject& object, QEvent& event) {
    switch (event.type()) {
        case QEvent::MouseButtonPress:
            return &object == view_.viewport() && press_mouse(event);
        case QEvent::MouseMove:
            // Dragging would select nodes that nobody clicked.
            return static_cast<QMouseEvent&>(event).buttons() != Qt::NoButton;
        case QEvent::ContextMenu:
            open_menu(static_cast<QContextMenuEvent&>(event));
            event.accept();
            return true;
        default:
            return false;
    }
}

/// The right button opens a menu and leaves the chosen node as it is.
bool TreeViewBinder::press_mouse(QEvent& event) {
    const bool right = static_cast<QMouseEvent&>(event).button() == Qt::RightButton;
    chosen_by_press_ = false;
    act([&] { control_.MouseDown.raise(right ? MouseButton::right : MouseButton::left); });
    return right || !is_bound_live();
}

/// A menu that the mouse asks for comes with the press of its button.
void TreeViewBinder::open_menu(const QContextMenuEvent& event) {
    if (event.reason() != QContextMenuEvent::Keyboard) return;
    const QRect node = view_.visualRect(view_.currentIndex());
    bound().popup_point = view_.viewport()->mapToGlobal(node.bottomLeft());
    const auto shown = qScopeGuard([this] { bound().popup_point.reset(); });
    control_.MouseDown.raise(MouseButton::right);
}

/// The view turns to another node at once; a click on the node where it stands comes as the button goes up.
void TreeViewBinder::choose(const QModelIndex& index) {
    TreeNode* node = model_.node_at(index);
    if (showing_ || node == nullptr || !is_bound_live()) return;
    chosen_by_press_ = true;
    act([&] { control_.user_click(*node); });
}

void TreeViewBinder::click(const QModelIndex& index) {
    if (!chosen_by_press_) choose(index);
}

void TreeViewBinder::expand(const QModelIndex& index, bool expanded) {
    TreeNode* node = model_.node_at(index);
    if (node != nullptr && is_bound_live()) control_.set_expanded(*node, expanded);
}

}  // namespace machine::qt
