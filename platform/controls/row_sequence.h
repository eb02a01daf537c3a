#pragma once

#include "platform/controls/list_item.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace platform {

using Row = std::unique_ptr<ListItem>;

/// A run of rows; never an empty one.
struct RowBlock {
    /// Position of the first of them in the list.
    std::size_t first = 0;
    std::vector<Row> rows;
};

/// The rows of a list in their order.
///
/// Lists reach 100,000 rows, and in a sorted one a new row may stand anywhere. So they stand in blocks: a new
/// row moves those of its block, not all that follow.
class RowSequence {
  public:
    std::size_t size() const { return size_; }
    ListItem& operator[](std::size_t position) const;

    /// Puts the row before the one at the position; at the end when the position is the size.
    void insert(std::size_t position, Row row);

    /// Takes all rows out, in their order.
    std::vector<Row> take_all();

  private:
    using Blocks = std::vector<std::unique_ptr<RowBlock>>;

    Blocks::iterator split(Blocks::iterator full, std::size_t position);

    Blocks blocks_;
    std::size_t size_ = 0;
};

}  // namespace platform
