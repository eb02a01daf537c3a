#pragma once

#include "machine/jet/reader/card_stream.h"
#include "platform/ports/card_source.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace machine::jet {

/// Rows of fields in little memory: of hundreds of thousands only a few are looked at.
class CardRows {
  public:
    struct Column {
        platform::Text name;
        int type = platform::FIELD_TEXT;
    };

    /// Texts that come from `source` are not copied.
    explicit CardRows(std::vector<Column> columns, std::shared_ptr<const CardRows> source = {})
        : columns_(std::move(columns)), source_(std::move(source)) {}

    /// Fields are added row by row, one for each column. Raises RuntimeError 7 (out of memory) when there are
    /// more than a card database can have.
    void add(const Cell& cell);

    std::size_t size() const { return columns_.empty() ? 0 : cells_.size() / columns_.size(); }
    std::size_t fields() const { return cells_.size(); }
    /// The position of the column with that name, in any case.
    std::optional<std::size_t> column(platform::TextView name) const;
    Cell at(std::size_t row, std::size_t column) const;
    platform::CardField field(std::size_t row, std::size_t column) const;

  private:
    /// A number, or the start and length of a text.
    struct Packed {
        enum class Kind : std::uint32_t { null, number, text, text_of_source };

        std::uint32_t value;
        Kind kind : 2;
        std::uint32_t length : 30;
    };

    std::vector<Column> columns_;
    std::shared_ptr<const CardRows> source_;
    std::vector<Packed> cells_;
    platform::Text texts_;
};

}  // namespace machine::jet
