#pragma once

#include "platform/controls/list_view.h"

#include <QAbstractTableModel>
#include <QIcon>
#include <QList>

namespace machine::qt {

/// The rows of a list for Qt's views, which read them in place: nothing is copied.
class ListViewModel : public QAbstractTableModel {
    Q_OBJECT

  public:
    /// Rows show the pictures by their numbers, counted from 1.
    ListViewModel(platform::ListView& list, QList<QIcon> pictures, QObject* parent)
        : QAbstractTableModel(parent),
          list_(&list),
          pictures_(std::move(pictures)),
          told_rows_(static_cast<int>(list.row_count())) {}

    /// To be called before the list is destroyed. It notifies nobody: the view may be at work, and it is
    /// closed soon anyway.
    void let_go() { list_ = nullptr; }

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    /// Tells the views about all rows added since the last call.
    void tell_added_rows();
    /// A row comes before another one. The views learn of it at once, for they read the rows in place.
    void begin_inserting(int row);
    void end_inserting();
    void begin_rearranging() { beginResetModel(); }
    void end_rearranging();
    void rows_changed(int first, int last);
    void columns_changed();
    /// The header shows whether all rows are checked, some or none.
    Qt::CheckState checked_rows() const;
    void tell_checked_rows();

  signals:
    /// The user changed the row's check box.
    void checked_by_user(std::size_t row, bool checked);

  private:
    int rows_of_list() const { return static_cast<int>(list_->row_count()); }
    QVariant picture(const platform::ListItem& row) const;

    platform::ListView* list_;
    QList<QIcon> pictures_;
    int told_rows_;
    Qt::CheckState told_checked_ = Qt::Unchecked;
};

}  // namespace machine::qt
