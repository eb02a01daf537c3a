#include "machine/qt/binders/list_view_binder.h"

#include "machine/qt/binders/drops.h"
#include "machine/qt/look/colours.h"
#include "machine/qt/typing/conversion.h"
#include "machine/qt/widgets/marked_cell.h"

#include <QContextMenuEvent>
#include <QDropEvent>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>
#include <QTreeView>
#include <utility>

namespace machine::qt {

using platform::KeyPressed;

namespace {

void set_up_list(QTreeView& view) {
    view.setUniformRowHeights(true);
    view.setRootIsDecorated(false);
    view.setItemsExpandable(false);
    view.setAllColumnsShowFocus(true);
    view.setSelectionBehavior(QAbstractItemView::SelectRows);
    view.setSelectionMode(view.property("singleSelection").toBool() ? QAbstractItemView::SingleSelection
                                                                    : QAbstractItemView::ExtendedSelection);
    view.setEditTriggers(QAbstractItemView::NoEditTriggers);
    view.header()->setSectionsClickable(true);
    view.header()->setSectionsMovable(false);
    view.setItemDelegate(new MarkedCell(&view));
}

/// Whether the click is for the box in the header, not for the caption beside it.
bool is_on_header_box(const QHeaderView& header, const QPoint& place) {
    if (header.logicalIndexAt(place) != 0) return false;
    const QStyle& style = *header.style();
    const int box = style.pixelMetric(QStyle::PM_SmallIconSize, nullptr, &header) +
                    2 * style.pixelMetric(QStyle::PM_HeaderMargin, nullptr, &header);
    return place.x() - header.sectionViewportPosition(0) < box;
}

bool moves(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_Left:
        case Qt::Key_Right:
        case Qt::Key_Home:
        case Qt::Key_End:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
            return true;
        case Qt::Key_Space:
            return event.modifiers() != Qt::NoModifier;
        default:
            return false;
    }
}

}  // namespace

ListViewBinder::ListViewBinder(BoundForm& bound, platform::ListView& control, QTreeView& view)
    : BinderOf(bound, control, view), rows_(control, view), widths_(*view.header()) {
    control.attach_rows(&rows_);
    set_up_list(view);
    widths_.set(view.property("columnWidths").toStringList());
    view.setAcceptDrops(true);
    if (control.check_boxes()) view.header()->viewport()->installEventFilter(this);
    show(platform::Aspect::selection);
    connect(&rows_.model(), &ListViewModel::checked_by_user, this, [this](std::size_t row, bool checked) {
        act([&] { this->control().user_check(row, checked); });
    });
    for (const auto change : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(&rows_.model(), change, this, &ListViewBinder::describe);
    connect(&rows_.model(), &QAbstractItemModel::modelReset, this, &ListViewBinder::describe);
    describe();
    connect(view.header(), &QHeaderView::sectionClicked, this,
            [this](int section) { act([&] { this->control().ColumnClick.raise(section + 1); }); });
    // Two quick clicks on a row's box are just that.
    connect(&view, &QTreeView::doubleClicked, this, [this](const QModelIndex& index) {
        if (!(index.flags() & Qt::ItemIsUserCheckable)) act([this] { this->control().DblClick.raise(); });
    });
}

void ListViewBinder::release() {
    control().attach_rows(nullptr);
    rows_.let_go();
    WidgetBinder::release();
}

void ListViewBinder::show(platform::Aspect aspect) {
    if (aspect == platform::Aspect::selection)
        widget().setProperty("quietSelection", !control().shows_selection());
    if (aspect == platform::Aspect::selection || aspect == platform::Aspect::rows)
        widget().viewport()->update();
    if (aspect == platform::Aspect::rows) describe();
}

/// A screen reader cannot see what an empty list tells.
void ListViewBinder::describe() {
    if (!is_bound_live()) return;
    const bool is_empty = control().row_count() == 0;
    const QString told = is_empty ? to_qstring(control().placeholder()) : QString();
    if (widget().accessibleDescription() != told) widget().setAccessibleDescription(told);
}

bool ListViewBinder::filter(QObject& object, QEvent& event) {
    if (&object == widget().header()->viewport()) return click_header(event);
    switch (event.type()) {
        case QEvent::KeyPress:
            rows_.bring_up_to_date();
            return press_key(static_cast<QKeyEvent&>(event));
        case QEvent::KeyRelease:
            release_key(static_cast<QKeyEvent&>(event));
            return !is_bound_live();
        case QEvent::Resize:
            if (&object == widget().viewport()) {
                widths_.fill(widget().viewport()->width());
                control().user_resized(to_twips(widget().viewport()->width()));
            }
            return false;
        case QEvent::DragEnter:
        case QEvent::DragMove:
            return take_drag(static_cast<QDropEvent&>(event));
        case QEvent::Drop:
            return take_drop(static_cast<QDropEvent&>(event));
        case QEvent::Paint:
            return &object == widget().viewport() && control().row_count() == 0 && paint_placeholder();
        case QEvent::MouseButtonPress:
            rows_.bring_up_to_date();
            return false;
        case QEvent::MouseButtonRelease:
            if (&object == widget().viewport()) act([&] { control().MouseUp.raise(button_of(event)); });
            return !is_bound_live();
        case QEvent::ToolTip:
            if (&object != widget().viewport()) return false;
            show_tip(static_cast<QHelpEvent&>(event));
            return true;
        case QEvent::ContextMenu:
            return open_menu(event, control().MouseUp);
        default:
            return false;
    }
}

/// The view itself handles the keys that move through the rows or to the next control. It gets no letters,
/// with which it would search the first column: that one is empty, and the handlers use letters.
bool ListViewBinder::press_key(QKeyEvent& event) {
    if (moves(event)) return false;
    event.accept();
    if (event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier) {
        // Not every keyboard has the key for the menu.
        QContextMenuEvent menu(QContextMenuEvent::Keyboard, QPoint(), QPoint());
        return open_menu(menu, control().MouseUp);
    }
    if (event.key() == Qt::Key_Space && control().check_boxes()) {
        toggle_check();
    } else if (event.key() == Qt::Key_Delete) {
        KeyPressed key{platform::KEY_DELETE};
        control().KeyDown.raise(key);
    } else if (KeyPressed key{key_code(event)}; !key.swallowed()) {
        const bool is_enter = key.code == platform::KEY_ENTER;
        control().KeyPress.raise(key);
        if (is_enter && !key.swallowed()) event.ignore();
    } else {
        event.ignore();
    }
    return true;
}

/// KeyUp comes when the view has moved, and only once for a key that was held down.
void ListViewBinder::release_key(const QKeyEvent& event) {
    if (event.isAutoRepeat()) return;
    if (KeyPressed key{moving_key_code(event)}; !key.swallowed()) control().KeyUp.raise(key);
}

/// All selected rows take the new state of the current one.
void ListViewBinder::toggle_check() {
    const QModelIndex current = widget().currentIndex();
    if (!current.isValid()) return;
    const auto place = static_cast<std::size_t>(current.row());
    const bool checked = !control().row(place).checked();
    const QItemSelection selection = widget().selectionModel()->selection();
    const bool many = selection.size() > 1 || (selection.size() == 1 && selection.first().height() > 1);
    if (many && selection.contains(current)) {
        control().user_check_many(platform::ListView::ManyRows::selected, checked);
    } else {
        control().user_check(place, checked);
    }
}

bool ListViewBinder::take_drag(QDropEvent& event) {
    if (!control().Drop.connected()) return false;
    answer_drag(event, control().takes_input());
    return true;
}

bool ListViewBinder::take_drop(QDropEvent& event) {
    if (!take_drag(event) || !event.isAccepted()) return false;
    const platform::Dropped dropped = dropped_by(event, bound().files);
    act([&] { control().Drop.raise(dropped); });
    return true;
}

/// A click on the box in the header checks or unchecks all rows. The header, which would sort, gets no part
/// of it. The handlers may ask the user something, so the click is over before they run.
bool ListViewBinder::click_header(const QEvent& event) {
    const bool press =
        event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseButtonDblClick;
    if (!press && event.type() != QEvent::MouseButtonRelease) return false;
    const auto& click = static_cast<const QMouseEvent&>(event);
    if (click.button() != Qt::LeftButton) return false;
    if (press) return header_box_pressed_ = is_on_header_box(*widget().header(), click.position().toPoint());
    if (!std::exchange(header_box_pressed_, false)) return false;
    rows_.bring_up_to_date();
    const bool checked = rows_.model().checked_rows() != Qt::Checked;
    act([&] { control().user_check_many(platform::ListView::ManyRows::all, checked); });
    return true;
}

/// Shows the whole text of a cell that is too narrow for it, and why the row is marked; beside the rows what
/// the list is for.
void ListViewBinder::show_tip(const QHelpEvent& event) {
    const QModelIndex index = widget().indexAt(event.pos());
    const QRect cell = widget().visualRect(index);
    if (!index.isValid())
        return QToolTip::showText(event.globalPos(), widget().toolTip(), widget().viewport());
    QStringList lines;
    if (widget().sizeHintForIndex(index).width() > cell.width()) lines << index.data().toString();
    const platform::Text reason = control().mark_reason(static_cast<std::size_t>(index.row()));
    if (!reason.empty()) lines << to_qstring(reason);
    QToolTip::showText(event.globalPos(), lines.join(u'\n'), widget().viewport(), cell);
}

/// Paints what an empty list tells; false when it tells nothing.
bool ListViewBinder::paint_placeholder() {
    if (control().placeholder().empty()) return false;
    constexpr int AIR = 12;
    QWidget& viewport = *widget().viewport();
    QPainter painter(&viewport);
    painter.setPen(colours_of(widget().palette()).muted);
    painter.drawText(viewport.rect().adjusted(AIR, AIR, -AIR, -AIR), Qt::AlignCenter | Qt::TextWordWrap,
                     to_qstring(control().placeholder()));
    return true;
}

}  // namespace machine::qt
