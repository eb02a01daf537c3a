#include "machine/qt/binders/list_rows.h"

#include "machine/qt/look/late_icon.h"
#include "machine/qt/typing/conversion.h"

#include <QHeaderView>
#include <QScopedValueRollback>
#include <QTreeView>
#include <algorithm>
#include <utility>

namespace machine::qt {

ListRows::ListRows(platform::ListView& list, QTreeView& view)
    : list_(list), view_(view), model_(list, pictures_of(view), this) {
    view.setModel(&model_);
    const QItemSelectionModel* selection = view.selectionModel();
    connect(selection, &QItemSelectionModel::selectionChanged, this, &ListRows::take_selection);
    connect(selection, &QItemSelectionModel::currentChanged, this, &ListRows::take_selected_item);
    show_selection();
}

void ListRows::bring_up_to_date() {
    gathering_ = false;
    if (!live_) return;
    model_.tell_added_rows();
    if (first_changed_) model_.rows_changed(*first_changed_, last_changed_);
    first_changed_.reset();
    model_.tell_checked_rows();
    if (selection_changed_) show_selection();
    if (to_show_) view_.scrollTo(model_.index(*to_show_, 0));
    to_show_.reset();
}

void ListRows::let_go() {
    live_ = false;
    model_.let_go();
}

void ListRows::selection_changed() {
    selection_changed_ = true;
    gather();
}

void ListRows::row_added() {
    gather();
    if (model_.rowCount() > 0) return;
    model_.tell_added_rows();
    keep_current(0);
}

void ListRows::row_about_to_be_inserted(std::size_t row) {
    const int inserted = static_cast<int>(row);
    model_.begin_inserting(inserted);
    if (first_changed_ && inserted <= last_changed_) ++last_changed_;
    if (to_show_ && inserted <= *to_show_) ++*to_show_;
}

void ListRows::row_inserted() { model_.end_inserting(); }

void ListRows::rows_about_to_be_rearranged() {
    current_before_ = view_.currentIndex().row();
    model_.begin_rearranging();
}

void ListRows::rows_rearranged() {
    model_.end_rearranging();
    first_changed_.reset();
    to_show_.reset();
    model_.tell_checked_rows();
    show_selection();
}

void ListRows::row_changed(std::size_t row) {
    const int changed = static_cast<int>(row);
    last_changed_ = first_changed_ ? std::max(last_changed_, changed) : changed;
    first_changed_ = first_changed_ ? std::min(*first_changed_, changed) : changed;
    gather();
}

void ListRows::columns_changed() {
    model_.columns_changed();
    widths_.resize(static_cast<std::size_t>(list_.column_count()));
    for (int column = 0; column < list_.column_count(); ++column) {
        const int width = list_.column(column + 1).width;
        // A width that the list has set before is the user's to change.
        if (std::exchange(widths_[static_cast<std::size_t>(column)], width) != width && width > 0)
            view_.header()->resizeSection(column, to_pixels(width));
    }
}

void ListRows::make_visible(std::size_t row) {
    to_show_ = static_cast<int>(row);
    gather();
}

void ListRows::gather() {
    if (gathering_) return;
    gathering_ = true;
    QMetaObject::invokeMethod(this, &ListRows::bring_up_to_date, Qt::QueuedConnection);
}

void ListRows::show_selection() {
    selection_changed_ = false;
    QItemSelection selection;
    for (int row = 0; row <= last_row(); ++row) {
        const int first = row;
        while (row <= last_row() && list_.row(static_cast<std::size_t>(row)).selected()) ++row;
        if (row > first)
            selection.select(model_.index(first, 0), model_.index(row - 1, model_.columnCount() - 1));
    }
    const QScopedValueRollback<bool> showing(showing_, true);
    view_.selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    if (const auto item = list_.selected_item()) {
        keep_current(static_cast<int>(*item));
    } else if (!view_.currentIndex().isValid()) {
        keep_current(current_before_);
    }
}

/// Keeps a current row: Qt crashes when a screen reader asks for the current row of a view that has none.
void ListRows::keep_current(int row) {
    if (last_row() < 0) return;
    const QScopedValueRollback<bool> showing(showing_, true);
    view_.selectionModel()->setCurrentIndex(model_.index(std::clamp(row, 0, last_row()), 0),
                                            QItemSelectionModel::NoUpdate);
}

void ListRows::take_selection(const QItemSelection& selected, const QItemSelection& deselected) {
    if (showing_ || !live_) return;
    const auto take = [this](const QItemSelection& ranges, bool on) {
        for (const QItemSelectionRange& range : ranges) {
            for (int row = range.top(); row <= range.bottom(); ++row) {
                list_.user_select(static_cast<std::size_t>(row), on);
            }
        }
    };
    take(deselected, false);
    take(selected, true);
    take_selected_item();
}

/// The current row where it is selected; otherwise keys act on another row of the selection.
void ListRows::take_selected_item() {
    if (showing_ || !live_) return;
    const auto is_selected = [this](std::size_t row) { return list_.row(row).selected(); };
    if (const int current = view_.currentIndex().row(); current >= 0 && is_selected(current)) {
        list_.user_selected_item(current);
    } else if (const auto item = list_.selected_item(); !item || !is_selected(*item)) {
        const QItemSelection selection = view_.selectionModel()->selection();
        list_.user_selected_item(selection.isEmpty() ? std::nullopt
                                                     : std::optional<std::size_t>(selection.first().top()));
    }
}

}  // namespace machine::qt
