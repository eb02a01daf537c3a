#pragma once

#include "platform/controls/list_view.h"

#include <QAbstractTableModel>
#include <QIcon>
#include <QList>

namespace machine::qt {

/// The rows of a list as the toolkit's views read them: in place, nothing is copied.
class ListViewModel : public QAbstractTableModel {
    Q_OBJECT

  public:
    /// Rows show the pictures by their numbers, counted from 1.
    ListViewModel(platform::ListView& list, QList<QIcon> pictures, QObject* parent)
        : QAbstractTableModel(parent),
          list_(&list),
          pictures_(std::move(pictures)),
          told_rows_(static_cast<int>(list.row_count())) {}

    /// The list goes. Nobody is told, since it may go in the midst of the view's own work; the view is closed
    /// anyway.
    void let_go() { list_ = nullptr; }

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    /// Tells the views all rows that have come since they were last told.
    void tell_added_rows();
    void begin_rearranging() { beginResetModel(); }
    void end_rearranging();
    void rows_changed(int first, int last);
    void columns_changed();

  signals:
    /// The user ticked the row's box or took the tick away.
    void checked_by_user(std::size_t row, bool checked);

  private:
    int rows_of_list() const { return static_cast<int>(list_->row_count()); }
    QVariant picture(const platform::ListItem& row) const;

    platform::ListView* list_;
    QList<QIcon> pictures_;
    int told_rows_;
};

}  // namespace machine::qt
