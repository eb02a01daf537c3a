#include "platform/controls/combo_box.h"

#include "platform/controls/control_visitor.h"
#include "platform/error.h"

namespace platform {

void ComboBox::accept(ControlVisitor& visitor) { visitor.visit(*this); }

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
    if (text == text_) return;
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
