#pragma once

#include "platform/controls/control.h"
#include "platform/controls/input.h"
#include "platform/text/calendar.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace platform {

/// A field for text. Line ends are CR LF; positions are counted in characters, a line end counting as two.
class TextBox : public Control {
  public:
    using Control::Control;
    void accept(ControlVisitor& visitor) override;

    const Text& text() const { return text_; }
    /// Raises Change when the text is a different one; the caret goes to the start.
    void set_text(Text text);

    /// Red, green and blue in one number; nothing means the desktop's own text colour.
    std::optional<std::uint32_t> text_colour() const { return text_colour_; }
    void set_text_colour(std::optional<std::uint32_t> colour) {
        assign(text_colour_, colour, Aspect::colour);
    }

    std::size_t selection_start() const { return selection_start_; }
    std::size_t selection_length() const { return selection_length_; }
    void select(std::size_t start, std::size_t length);
    void select_all() { select(0, text_.size()); }
    void set_caret_to_end() { select(text_.size(), 0); }

    /// Replaces the selection with the text, as a paste from the clipboard does: raises Change but no
    /// KeyPress.
    void paste(const Text& text);

    /// The user edited the field: its new text and where the caret is now.
    void user_edit(Text text, std::size_t caret);
    /// The user moved the caret or the selection; the widget shows it already.
    void user_selection(std::size_t start, std::size_t length);

    Event<> Change;
    /// Raised before a key changes the text. An input method and a paste raise none.
    UserEvent<KeyPressed&> KeyPress{*this};
    /// The user pasted lines, or cells of a table, into a field of one line. With a handler they do not go
    /// into the field.
    UserEvent<const Text&> LinesPasted{*this};
    /// Up and down in a field of one line, where they move nothing.
    UserEvent<KeyPressed&> KeyDown{*this};

  private:
    Text text_;
    std::optional<std::uint32_t> text_colour_;
    std::size_t selection_start_ = 0;
    std::size_t selection_length_ = 0;
};

/// Rows to choose from, with a field to type into if its style is `Style::editable`.
class ComboBox : public Control {
  public:
    enum class Style { list, editable };

    ComboBox() = default;
    ComboBox(Form& form, TextView name, Style style = Style::list) : Control(form, name), style_(style) {}
    void accept(ControlVisitor& visitor) override;

    Style style() const { return style_; }

    const std::vector<Text>& rows() const { return rows_; }
    void add_row(Text row, int item_data = 0);
    /// Removes the rows and, in an editable list, the text.
    void clear();
    int item_data(int index) const;

    /// -1 while no row is chosen.
    int list_index() const { return list_index_; }
    /// Chooses a row and raises Click, also when the row was already chosen. Raises RuntimeError 380 for a
    /// row that does not exist.
    void set_list_index(int index);

    const Text& text() const { return text_; }
    /// For editable lists only: raises Change when the text is a different one; afterwards no row is chosen.
    void set_text(Text text);

    void user_edit(Text text);
    void user_choose(int index) {
        if (takes_input()) set_list_index(index);
    }

    Event<> Click;
    Event<> Change;

  private:
    void check_index(int index) const;

    Style style_ = Style::list;
    std::vector<Text> rows_;
    std::vector<int> item_data_;
    int list_index_ = -1;
    Text text_;
};

/// A field for a date. Its value has a time of day as well, which it does not show.
class DatePicker : public Control {
  public:
    using Control::Control;
    void accept(ControlVisitor& visitor) override;

    LocalTime value() const { return value_; }
    void set_value(LocalTime value) { assign(value_, value, Aspect::value); }
    void user_choose(LocalTime value) {
        if (takes_input()) set_value(value);
    }

  private:
    LocalTime value_{};
};

}  // namespace platform
