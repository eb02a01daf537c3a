#pragma once

#include "machine/jet/sql/card_rows.h"

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace machine::jet {

/// Positions of rows, in some order.
using RowNumbers = std::span<const std::uint32_t>;

/// One of the card manager's tables in memory, with the orders that statements ask for. Rows with equal keys
/// keep the file's order.
class CardTable {
  public:
    explicit CardTable(Table table);

    /// Rows are added in the file's order.
    void add(const Row& row);
    void all_added();

    Table table() const { return table_; }
    const std::shared_ptr<CardRows>& rows() const { return rows_; }

    /// The column with the folder, and the one by which lists are ordered: a folder's number, a card's place.
    std::size_t folder_column() const { return 0; }
    std::size_t order_column() const { return table_ == Table::folder ? 0 : 2; }

    RowNumbers in_file_order() const { return file_order_; }
    RowNumbers in_order() const { return order_; }
    /// The rows of one folder, in their order.
    RowNumbers of_folder(std::int32_t folder) const;

  private:
    /// The column's number in every row; a row without a number sorts first.
    std::vector<std::int64_t> keys_of(std::size_t column) const;

    Table table_;
    std::shared_ptr<CardRows> rows_;
    std::vector<std::uint32_t> file_order_, order_, by_folder_;
    std::vector<std::int64_t> folders_;
};

}  // namespace machine::jet
