#include "machine/qt/binders/list_view_model.h"

#include "machine/qt/look/late_icon.h"
#include "machine/qt/look/signs.h"
#include "machine/qt/typing/conversion.h"
#include "machine/qt/widgets/marked_cell.h"

#include <QApplication>
#include <QFont>

namespace machine::qt {

using platform::ListItem;

int ListViewModel::rowCount(const QModelIndex& parent) const {
    return list_ == nullptr || parent.isValid() ? 0 : told_rows_;
}

int ListViewModel::columnCount(const QModelIndex& parent) const {
    return list_ == nullptr || parent.isValid() ? 0 : list_->column_count();
}

QVariant ListViewModel::data(const QModelIndex& index, int role) const {
    if (list_ == nullptr || !index.isValid()) return QVariant();
    const ListItem& row = list_->row(static_cast<std::size_t>(index.row()));
    const platform::ListView::Column& column = list_->column(index.column() + 1);
    if (role == Qt::DisplayRole) {
        const platform::Text& text = row.sub_item(index.column());
        return to_qstring(column.shown == nullptr ? text : column.shown(text));
    }
    if (role == MARK_ROLE) return static_cast<int>(list_->mark(static_cast<std::size_t>(index.row())));
    if (role == SIGN_ROLE) return column.signs;
    if (role == Qt::DecorationRole && index.column() == 0) return picture(row);
    if (role == Qt::CheckStateRole && index.column() == 0 && list_->check_boxes()) {
        return row.checked() ? Qt::Checked : Qt::Unchecked;
    }
    return QVariant();
}

QVariant ListViewModel::picture(const ListItem& row) const {
    const QIcon picture = pictures_.value(row.small_icon() - 1);
    return picture.isNull() ? QVariant() : QVariant(picture);
}

bool ListViewModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (list_ == nullptr || role != Qt::CheckStateRole || index.column() != 0) return false;
    emit checked_by_user(static_cast<std::size_t>(index.row()), value.toInt() == Qt::Checked);
    return true;
}

QVariant ListViewModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (list_ == nullptr || orientation != Qt::Horizontal || section < 0 ||
        section >= list_->column_count()) {
        return QVariant();
    }
    const platform::ListView::Column& column = list_->column(section + 1);
    if (role == Qt::DisplayRole) return to_qstring(column.caption);
    if (role == Qt::FontRole && column.in_use) {
        QFont font = QApplication::font();
        font.setBold(true);
        return font;
    }
    if (role == Qt::DecorationRole && section == 0 && list_->check_boxes())
        return check_box_icon(checked_rows());
    if (role == Qt::DecorationRole && column.picture) {
        return late_icon(*column.picture == 0 ? QStringLiteral("sort_up") : QStringLiteral("sort_down"));
    }
    return QVariant();
}

Qt::CheckState ListViewModel::checked_rows() const {
    const std::size_t checked = list_ == nullptr ? 0 : list_->checked_count();
    if (checked == 0) return Qt::Unchecked;
    return checked == list_->row_count() ? Qt::Checked : Qt::PartiallyChecked;
}

Qt::ItemFlags ListViewModel::flags(const QModelIndex& index) const {
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    if (list_ != nullptr && list_->check_boxes() && index.column() == 0) flags |= Qt::ItemIsUserCheckable;
    return flags;
}

void ListViewModel::tell_added_rows() {
    if (rows_of_list() == told_rows_) return;
    beginInsertRows(QModelIndex(), told_rows_, rows_of_list() - 1);
    told_rows_ = rows_of_list();
    endInsertRows();
}

void ListViewModel::begin_inserting(int row) {
    tell_added_rows();
    beginInsertRows(QModelIndex(), row, row);
}

void ListViewModel::end_inserting() {
    ++told_rows_;
    endInsertRows();
}

void ListViewModel::end_rearranging() {
    told_rows_ = rows_of_list();
    endResetModel();
}

void ListViewModel::rows_changed(int first, int last) {
    emit dataChanged(index(first, 0), index(last, columnCount() - 1));
}

void ListViewModel::tell_checked_rows() {
    if (told_checked_ == checked_rows()) return;
    told_checked_ = checked_rows();
    emit headerDataChanged(Qt::Horizontal, 0, 0);
}

void ListViewModel::columns_changed() { emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1); }

}  // namespace machine::qt
