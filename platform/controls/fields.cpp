#include "platform/controls/fields.h"

#include "platform/error.h"

#include <algorithm>

namespace platform {

void TextBox::set_text(Text text) {
    if (text == text_) return;
    text_ = std::move(text);
    selection_start_ = 0;
    selection_length_ = 0;
    refresh(Aspect::text);
    Change.raise();
}

void TextBox::select(std::size_t start, std::size_t length) {
    user_selection(start, length);
    refresh(Aspect::selection);
}

void TextBox::paste(const Text& text) {
    Text changed = text_;
    changed.replace(selection_start_, selection_length_, text);
    const bool different = changed != text_;
    text_ = std::move(changed);
    user_selection(selection_start_ + text.size(), 0);
    refresh(Aspect::text);
    refresh(Aspect::selection);
    if (different) Change.raise();
}

void TextBox::user_edit(Text text, std::size_t caret) {
    if (!takes_input()) return;
    const bool different = text != text_;
    text_ = std::move(text);
    user_selection(caret, 0);
    if (different) Change.raise();
}

void TextBox::user_selection(std::size_t start, std::size_t length) {
    selection_start_ = std::min(start, text_.size());
    selection_length_ = std::min(length, text_.size() - selection_start_);
}

void ComboBox::add_row(Text row, int item_data) {
    rows_.push_back(std::move(row));
    item_data_.push_back(item_data);
    refresh(Aspect::rows);
}

void ComboBox::clear() {
    rows_.clear();
    item_data_.clear();
    list_index_ = -1;
    text_.clear();
    refresh(Aspect::rows);
}

int ComboBox::item_data(int index) const {
    check_index(index);
    return item_data_[static_cast<std::size_t>(index)];
}

void ComboBox::set_list_index(int index) {
    check_index(index);
    list_index_ = index;
    text_ = rows_[static_cast<std::size_t>(index)];
    refresh(Aspect::value);
    Click.raise();
}

void ComboBox::set_text(Text text) {
    if (text == text_) return;
    list_index_ = -1;
    text_ = std::move(text);
    refresh(Aspect::text);
    Change.raise();
}

void ComboBox::user_edit(Text text) {
    if (text == text_ || !takes_input()) return;
    list_index_ = -1;
    text_ = std::move(text);
    Change.raise();
}

void ComboBox::check_index(int index) const {
    if (index < 0 || static_cast<std::size_t>(index) >= rows_.size()) {
        throw RuntimeError(ErrorNumber::invalid_property_value);
    }
}

}  // namespace platform
