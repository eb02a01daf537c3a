#include "machine/qt/binders/list_view_binder.h"

#include "machine/qt/typing/conversion.h"

#include <QFontInfo>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QToolTip>
#include <QTreeView>

namespace machine::qt {

using platform::KeyPressed;

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
    // The screen's widths are for text of 12 pixels. Columns with "*" share what the others leave; columns of
    // width 0 hold data for the handlers and are not shown.
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

/// Shows the whole text of a cell that is too narrow for it.
void show_cut_text(QTreeView& view, const QHelpEvent& event) {
    const QModelIndex index = view.indexAt(event.pos());
    const QRect cell = view.visualRect(index);
    if (!index.isValid() || view.sizeHintForIndex(index).width() <= cell.width()) return QToolTip::hideText();
    QToolTip::showText(event.globalPos(), index.data().toString(), view.viewport(), cell);
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
    : BinderOf(bound, control, view), rows_(control, view) {
    control.attach_rows(&rows_);
    set_up(view);
    connect(&rows_.model(), &ListViewModel::checked_by_user, this, [this](std::size_t row, bool checked) {
        act([&] { this->control().user_check(row, checked); });
    });
    connect(view.header(), &QHeaderView::sectionClicked, this,
            [this](int section) { act([&] { this->control().ColumnClick.raise(section + 1); }); });
    connect(&view, &QTreeView::doubleClicked, this,
            [this] { act([this] { this->control().DblClick.raise(); }); });
}

void ListViewBinder::release() {
    control().attach_rows(nullptr);
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
            if (&object == widget().viewport())
                control().user_resized(to_twips(widget().viewport()->width()));
            return false;
        case QEvent::MouseButtonPress:
            rows_.bring_up_to_date();
            return false;
        case QEvent::MouseButtonRelease:
            if (&object == widget().viewport()) act([&] { control().MouseUp.raise(button_of(event)); });
            return !is_bound_live();
        case QEvent::ToolTip:
            if (&object != widget().viewport()) return false;
            show_cut_text(widget(), static_cast<QHelpEvent&>(event));
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

void ListViewBinder::toggle_check() {
    const int row = widget().currentIndex().row();
    if (row < 0) return;
    const auto place = static_cast<std::size_t>(row);
    control().user_check(place, !control().row(place).checked());
}

}  // namespace machine::qt
