#include "platform/jet/card_rows.h"

#include "platform/error.h"

#include <algorithm>

namespace platform::jet {

void CardRows::add_text(TextView text) {
    if (texts_.size() + text.size() >= IS_NUMBER) throw RuntimeError(ErrorNumber::out_of_memory);
    cells_.push_back({static_cast<std::uint32_t>(texts_.size()), static_cast<std::uint32_t>(text.size())});
    texts_ += text;
}

std::optional<std::size_t> CardRows::column(TextView name) const {
    const auto found = std::ranges::find_if(columns_, [&](const Column& column) {
        return column.name.size() == name.size() && equal_without_case(column.name, name);
    });
    if (found == columns_.end()) return std::nullopt;
    return static_cast<std::size_t>(found - columns_.begin());
}

CardField CardRows::field(std::size_t row, std::size_t column) const {
    const Cell& cell = cells_[row * columns_.size() + column];
    const int type = columns_[column].type;
    if (cell.length == IS_NULL) return {type, {}};
    if (cell.length == IS_NUMBER) return {type, static_cast<std::int32_t>(cell.value)};
    return {type, texts_.substr(cell.value, cell.length)};
}

}  // namespace platform::jet
