#include "machine/qt/binders/list_view_binder.h"

#include "machine/qt/typing/key_code.h"
#include "machine/qt/typing/twips.h"

#include <QContextMenuEvent>
#include <QFontInfo>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QScopeGuard>
#include <QToolTip>
#include <QTreeView>

namespace machine::qt {

using platform::KEY_DELETE;
using platform::KEY_ENTER;
using platform::KeyPressed;
using platform::ListView;
using platform::MouseButton;

namespace {

void set_up(QTreeView& view) {
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
    // The screen's widths, drawn for text of 12 pixels; columns with "*" share what the others leave, and
    // those without a width are for the handlers alone.
    const QStringList widths = view.property("columnWidths").toStringList();
    for (int column = 0; column < widths.size(); ++column) {
        if (widths[column] == u'*') {
            view.header()->setSectionResizeMode(column, QHeaderView::Stretch);
        } else if (widths[column] == u'0') {
            view.setColumnHidden(column, true);
        } else {
            view.header()->resizeSection(column,
                                         widths[column].toInt() * QFontInfo(view.font()).pixelSize() / 12);
        }
    }
}

/// Tells the whole text of a cell that is too narrow for it.
void show_cut_text(QTreeView& view, const QHelpEvent& event) {
    const QModelIndex index = view.indexAt(event.pos());
    const QRect cell = view.visualRect(index);
    if (!index.isValid() || view.sizeHintForIndex(index).width() <= cell.width()) return QToolTip::hideText();
    QToolTip::showText(event.globalPos(), index.data().toString(), view.viewport(), cell);
}

bool moves_through_rows(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_Left:
        case Qt::Key_Right:
        case Qt::Key_Home:
        case Qt::Key_End:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            return true;
        case Qt::Key_Space:
            return event.modifiers() != Qt::NoModifier;
        default:
            return false;
    }
}

}  // namespace

ListViewBinder::ListViewBinder(BoundForm& bound, ListView& control, QTreeView& view)
    : WidgetBinder(bound, control, view), control_(control), view_(view), rows_(control, view) {
    control.attach_rows(&rows_);
    set_up(view);
    view.viewport()->installEventFilter(this);
    connect(&rows_.model(), &ListViewModel::checked_by_user, this,
            [this](std::size_t row, bool checked) { act([&] { control_.user_check(row, checked); }); });
    connect(view.header(), &QHeaderView::sectionClicked, this,
            [this](int section) { act([&] { control_.ColumnClick.raise(section + 1); }); });
    connect(&view, &QTreeView::doubleClicked, this, [this] { act([this] { control_.DblClick.raise(); }); });
}

void ListViewBinder::release() {
    control_.attach_rows(nullptr);
    rows_.let_go();
    WidgetBinder::release();
}

bool ListViewBinder::filter(QObject& object, QEvent& event) {
    switch (event.type()) {
        case QEvent::KeyPress:
            rows_.bring_up_to_date();
            return press_key(static_cast<QKeyEvent&>(event));
        case QEvent::KeyRelease:
            release_key(static_cast<QKeyEvent&>(event));
            return !is_bound_live();
        case QEvent::Resize:
            if (&object == view_.viewport()) control_.user_resized(to_twips(view_.viewport()->width()));
            return false;
        case QEvent::MouseButtonPress:
            rows_.bring_up_to_date();
            return false;
        case QEvent::MouseButtonRelease:
            if (&object == view_.viewport()) {
                const bool right = static_cast<QMouseEvent&>(event).button() == Qt::RightButton;
                act([&] { control_.MouseUp.raise(right ? MouseButton::right : MouseButton::left); });
            }
            return !is_bound_live();
        case QEvent::ToolTip:
            if (&object != view_.viewport()) return false;
            show_cut_text(view_, static_cast<QHelpEvent&>(event));
            return true;
        case QEvent::ContextMenu:
            open_menu(static_cast<QContextMenuEvent&>(event));
            event.accept();
            return true;
        default:
            return false;
    }
}

/// Keys that move through the rows are the view's. It does not look for rows by letters: the first column is
/// empty, and letters belong to the handlers.
bool ListViewBinder::press_key(QKeyEvent& event) {
    if (moves_through_rows(event)) return false;
    event.accept();
    if (event.key() == Qt::Key_Space && control_.check_boxes()) {
        toggle_check();
    } else if (event.key() == Qt::Key_Delete) {
        KeyPressed key{KEY_DELETE};
        control_.KeyDown.raise(key);
    } else if (KeyPressed key{key_code(event)}; !key.swallowed()) {
        const bool is_enter = key.code == KEY_ENTER;
        control_.KeyPress.raise(key);
        if (is_enter && !key.swallowed()) event.ignore();
    } else {
        event.ignore();
    }
    return true;
}

/// The view has moved by then. A key that is held down is released once.
void ListViewBinder::release_key(const QKeyEvent& event) {
    if (event.isAutoRepeat()) return;
    if (KeyPressed key{moving_key_code(event)}; !key.swallowed()) control_.KeyUp.raise(key);
}

/// A menu that the mouse asks for comes with the release of its button.
void ListViewBinder::open_menu(const QContextMenuEvent& event) {
    if (event.reason() != QContextMenuEvent::Keyboard) return;
    const QRect row = view_.visualRect(view_.currentIndex());
    bound().popup_point = view_.viewport()->mapToGlobal(row.bottomLeft());
    const auto shown = qScopeGuard([this] { bound().popup_point.reset(); });
    control_.MouseUp.raise(MouseButton::right);
}

void ListViewBinder::toggle_check() {
    const int row = view_.currentIndex().row();
    if (row < 0) return;
    const auto place = static_cast<std::size_t>(row);
    control_.user_check(place, !control_.row(place).checked());
}

}  // namespace machine::qt
