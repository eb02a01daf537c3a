#pragma once

#include "platform/text/text.h"

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace platform {

struct RowBlock;

/// What sets a row apart at a glance: a sign and a colour.
enum class RowMark : std::uint8_t {
    none,
    /// Nothing more is to be done with it.
    done,
    failed,
    /// The user has to look whether it is done.
    uncertain,
    /// It cannot be used as it is.
    unusable,
};

/// A row of a list: its item text and its sub-items, counted from 1.
class ListItem {
  public:
    ListItem(Text text, std::vector<Text> sub_items)
        : text_(std::move(text)), sub_items_(std::move(sub_items)) {}

    const Text& text() const { return text_; }
    /// The item text for 0; empty beyond the last sub-item.
    const Text& sub_item(int index) const;
    int sub_item_count() const { return static_cast<int>(sub_items_.size()); }
    /// Number of the row's picture in the screen's list of pictures, counted from 1; 0 for none.
    int small_icon() const { return small_icon_; }
    bool checked() const { return checked_; }
    bool selected() const { return selected_; }
    /// Position in the list, counted from 0.
    std::size_t position() const;

  private:
    friend class ListView;
    friend class RowSequence;

    Text text_;
    std::vector<Text> sub_items_;
    /// What a sorted list orders the row by: its text when it was sorted or added.
    Text sort_text_;
    const RowBlock* block_ = nullptr;
    int small_icon_ = 0;
    bool checked_ = false;
    bool selected_ = false;
};

}  // namespace platform
