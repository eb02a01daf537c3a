#pragma once

#include "platform/ports/card_source.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace platform::jet {

/// All rows that a statement gave, packed: hundreds of thousands of fields are kept, and few are looked at.
class CardRows {
  public:
    struct Column {
        Text name;
        int type = FIELD_TEXT;
    };

    explicit CardRows(std::vector<Column> columns) : columns_(std::move(columns)) {}

    /// Fields are added row by row, one for each column.
    void add_null() { cells_.push_back({0, IS_NULL}); }
    void add_number(std::int32_t number) {
        cells_.push_back({static_cast<std::uint32_t>(number), IS_NUMBER});
    }
    void add_text(TextView text);

    std::size_t size() const { return columns_.empty() ? 0 : cells_.size() / columns_.size(); }
    std::size_t fields() const { return cells_.size(); }
    /// The position of the column of that name, in any case.
    std::optional<std::size_t> column(TextView name) const;
    CardField field(std::size_t row, std::size_t column) const;

  private:
    static constexpr std::uint32_t IS_NULL = 0xFFFFFFFF;
    static constexpr std::uint32_t IS_NUMBER = 0xFFFFFFFE;

    /// A number, or where a text begins; and the text's length.
    struct Cell {
        std::uint32_t value, length;
    };

    std::vector<Column> columns_;
    std::vector<Cell> cells_;
    Text texts_;
};

}  // namespace platform::jet
