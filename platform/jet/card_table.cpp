#include "platform/jet/card_table.h"

#include <algorithm>
#include <limits>
#include <numeric>

namespace platform::jet {

namespace {

int field_type(Kind kind) {
    switch (kind) {
        case Kind::number:
            return FIELD_LONG;
        case Kind::text:
            return FIELD_TEXT;
        case Kind::memo:
            return FIELD_MEMO;
    }
    return FIELD_TEXT;
}

std::vector<CardRows::Column> fields_of(Table table) {
    std::vector<CardRows::Column> columns;
    for (const Column& column : columns_of(table))
        columns.push_back({from_ascii(column.name), field_type(column.kind)});
    return columns;
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
    std::ranges::stable_sort(order_, {}, [this](std::uint32_t row) { return key(row, order_column()); });
    by_folder_ = order_;
    std::ranges::stable_sort(by_folder_, {}, [this](std::uint32_t row) { return key(row, folder_column()); });
}

RowNumbers CardTable::of_folder(std::int32_t folder) const {
    return std::ranges::equal_range(by_folder_, std::int64_t{folder}, {},
                                    [this](std::uint32_t row) { return key(row, folder_column()); });
}

std::int64_t CardTable::key(std::uint32_t row, std::size_t column) const {
    const Cell cell = rows_->at(row, column);
    const auto* number = std::get_if<std::int32_t>(&cell);
    return number != nullptr ? *number : std::numeric_limits<std::int64_t>::min();
}

}  // namespace platform::jet
