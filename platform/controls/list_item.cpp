#include "platform/controls/list_item.h"

#include "platform/controls/row_sequence.h"

#include <algorithm>

namespace platform {

const Text& ListItem::sub_item(int index) const {
    static const Text none;
    if (index == 0) return text_;
    return index <= sub_item_count() ? sub_items_[static_cast<std::size_t>(index - 1)] : none;
}

std::size_t ListItem::position() const {
    const auto row = std::ranges::find(block_->rows, this, &Row::get);
    return block_->first + static_cast<std::size_t>(row - block_->rows.begin());
}

}  // namespace platform
