#pragma once

#include <QStyledItemDelegate>

namespace machine::qt {

/// What a list's model tells of its cells: the row's mark, a platform::RowMark, and whether its sign stands
/// in the cell.
inline constexpr int MARK_ROLE = Qt::UserRole;
inline constexpr int SIGN_ROLE = Qt::UserRole + 1;

/// Draws the cells of a list with the signs and colours of its rows' marks. The texts themselves stay as they
/// are, for screen readers.
class MarkedCell : public QStyledItemDelegate {
    Q_OBJECT

  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

}  // namespace machine::qt
