#include "machine/jet/sql/card_table.h"

#include <algorithm>
#include <limits>
#include <numeric>

namespace machine::jet {

using platform::FIELD_TEXT;

namespace {

int field_type(Kind kind) {
    switch (kind) {
        case Kind::number:
            return platform::FIELD_LONG;
        case Kind::text:
            return FIELD_TEXT;
        case Kind::memo:
            return platform::FIELD_MEMO;
    }
    return FIELD_TEXT;
}

std::vector<CardRows::Column> fields_of(Table table) {
    std::vector<CardRows::Column> columns;
    for (const Column& column : columns_of(table))
        columns.push_back({platform::from_ascii(column.name), field_type(column.kind)});
    return columns;
}

/// Rows with the same key keep their order.
void sort_by(std::vector<std::uint32_t>& rows, const std::vector<std::int64_t>& keys) {
    const auto key = [&](std::uint32_t row) { return keys[row]; };
    if (!std::ranges::is_sorted(rows, {}, key)) std::ranges::stable_sort(rows, {}, key);
}

}  // namespace

CardTable::CardTable(Table table) : table_(table), rows_(std::make_shared<CardRows>(fields_of(table))) {}

void CardTable::add(const Row& row) {
    for (std::size_t i = 0; i < columns_of(table_).size(); ++i) rows_->add(row[i]);
}

void CardTable::all_added() {
    file_order_.resize(rows_->size());
    std::iota(file_order_.begin(), file_order_.end(), 0U);
    order_ = file_order_;
    sort_by(order_, keys_of(order_column()));
    folders_ = keys_of(folder_column());
    by_folder_ = order_;
    sort_by(by_folder_, folders_);
}

RowNumbers CardTable::of_folder(std::int32_t folder) const {
    const auto number = [this](std::uint32_t row) { return folders_[row]; };
    return {std::ranges::lower_bound(by_folder_, std::int64_t{folder}, {}, number),
            std::ranges::upper_bound(by_folder_, std::int64_t{folder}, {}, number)};
}

std::vector<std::int64_t> CardTable::keys_of(std::size_t column) const {
    std::vector<std::int64_t> keys(rows_->size(), std::numeric_limits<std::int64_t>::min());
    for (std::size_t row = 0; row < keys.size(); ++row) {
        const Cell cell = rows_->at(row, column);
        if (const auto* number = std::get_if<std::int32_t>(&cell)) keys[row] = *number;
    }
    return keys;
}

}  // namespace machine::jet
