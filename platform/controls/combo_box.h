#pragma once

#include "platform/controls/control.h"

#include <vector>

namespace platform {

/// Rows to choose from, with a field to type into where `Style::editable`.
class ComboBox : public Control {
  public:
    enum class Style { list, editable };

    ComboBox() = default;
    ComboBox(Form& form, TextView name, Style style = Style::list) : Control(form, name), style_(style) {}
    void accept(ControlVisitor& visitor) override;

    Style style() const { return style_; }

    const std::vector<Text>& rows() const { return rows_; }
    void add_row(Text row, int item_data = 0);
    /// Takes the rows away; the text of an editable box goes with them.
    void clear();
    int item_data(int index) const;

    /// -1 while no row is chosen.
    int list_index() const { return list_index_; }
    /// Chooses a row and raises Click, also for the row that was chosen already. Run-time error 380 outside
    /// the rows.
    void set_list_index(int index);

    const Text& text() const { return text_; }
    /// Editable boxes only: raises Change when the text is a different one, and no row is chosen any more.
    void set_text(Text text);

    void user_edit(Text text);

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

}  // namespace platform
