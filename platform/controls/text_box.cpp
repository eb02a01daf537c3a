#include "platform/controls/text_box.h"

#include "platform/controls/control_visitor.h"

#include <algorithm>

namespace platform {

void TextBox::accept(ControlVisitor& visitor) { visitor.visit(*this); }

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
    const bool different = text != text_;
    text_ = std::move(text);
    user_selection(caret, 0);
    if (different) Change.raise();
}

void TextBox::user_selection(std::size_t start, std::size_t length) {
    selection_start_ = std::min(start, text_.size());
    selection_length_ = std::min(length, text_.size() - selection_start_);
}

}  // namespace platform
