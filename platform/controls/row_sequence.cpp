#include "platform/controls/row_sequence.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace platform {

namespace {

constexpr std::size_t BLOCK_SIZE = 512;

/// The block that has the position; the last one for the position behind all rows.
template <class Blocks>
auto block_with(Blocks& blocks, std::size_t position) {
    return std::prev(
        std::ranges::partition_point(blocks, [&](const auto& block) { return block->first <= position; }));
}

}  // namespace

ListItem& RowSequence::operator[](std::size_t position) const {
    const RowBlock& block = **block_with(blocks_, position);
    return *block.rows[position - block.first];
}

void RowSequence::insert(std::size_t position, Row row) {
    if (blocks_.empty()) blocks_.push_back(std::make_unique<RowBlock>());
    auto place = block_with(blocks_, position);
    if ((*place)->rows.size() == BLOCK_SIZE) place = split(place, position);
    RowBlock& block = **place;
    row->block_ = &block;
    block.rows.insert(block.rows.begin() + static_cast<std::ptrdiff_t>(position - block.first),
                      std::move(row));
    std::for_each(std::next(place), blocks_.end(), [](const auto& behind) { ++behind->first; });
    ++size_;
}

/// Makes room in a full block and returns the block that has the position then.
RowSequence::Blocks::iterator RowSequence::split(Blocks::iterator full, std::size_t position) {
    // A list that grows at its end keeps full blocks.
    const auto kept = static_cast<std::ptrdiff_t>(position == size_ ? BLOCK_SIZE : BLOCK_SIZE / 2);
    std::vector<Row>& rows = (*full)->rows;
    auto behind = std::make_unique<RowBlock>();
    behind->first = (*full)->first + static_cast<std::size_t>(kept);
    behind->rows.reserve(BLOCK_SIZE);
    std::move(rows.begin() + kept, rows.end(), std::back_inserter(behind->rows));
    rows.erase(rows.begin() + kept, rows.end());
    for (const Row& moved : behind->rows) moved->block_ = behind.get();
    blocks_.insert(std::next(full), std::move(behind));
    return block_with(blocks_, position);
}

std::vector<Row> RowSequence::take_all() {
    std::vector<Row> rows;
    rows.reserve(size_);
    for (const auto& block : blocks_) std::ranges::move(block->rows, std::back_inserter(rows));
    blocks_.clear();
    size_ = 0;
    return rows;
}

}  // namespace platform
