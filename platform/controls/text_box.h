#pragma once

#include "platform/controls/control.h"

#include <cstddef>
#include <cstdint>
#include <optional>

namespace platform {

/// The character codes of keys that handlers look at.
inline constexpr int KEY_CTRL_A = 1;
inline constexpr int KEY_BACKSPACE = 8;
inline constexpr int KEY_ENTER = 13;
/// Not characters: the codes of keys in key-down and key-up events.
inline constexpr int KEY_PAGE_UP = 33;
inline constexpr int KEY_PAGE_DOWN = 34;
inline constexpr int KEY_END = 35;
inline constexpr int KEY_HOME = 36;
inline constexpr int KEY_UP = 38;
inline constexpr int KEY_DOWN = 40;
inline constexpr int KEY_DELETE = 46;

/// A key on its way to a control. A handler that sets the code to 0 swallows it.
struct KeyPressed {
    int code = 0;

    void swallow() { code = 0; }
    bool swallowed() const { return code == 0; }
};

/// A field for text. Line ends are CR LF; places are counted in characters, a line end counting two.
class TextBox : public Control {
  public:
    using Control::Control;
    void accept(ControlVisitor& visitor) override;

    const Text& text() const { return text_; }
    /// Raises Change when the text is a different one; the caret goes to the start.
    void set_text(Text text);

    /// Red, green and blue in one number; none is the desktop's own colour of text.
    std::optional<std::uint32_t> text_colour() const { return text_colour_; }
    void set_text_colour(std::optional<std::uint32_t> colour) {
        assign(text_colour_, colour, Aspect::colour);
    }

    std::size_t selection_start() const { return selection_start_; }
    std::size_t selection_length() const { return selection_length_; }
    void select(std::size_t start, std::size_t length);
    void select_all() { select(0, text_.size()); }
    void set_caret_to_end() { select(text_.size(), 0); }

    /// Puts the text in place of the selection, as a paste from the clipboard does: no KeyPress, but a
    /// Change.
    void paste(const Text& text);

    /// The user's edit: the new text and where the caret is now.
    void user_edit(Text text, std::size_t caret);
    /// The user moved the caret or the selection; the widget shows it already.
    void user_selection(std::size_t start, std::size_t length);

    Event<> Change;
    /// Before a key changes the text. Text from an input method or a paste comes without.
    Event<KeyPressed&> KeyPress;

  private:
    Text text_;
    std::optional<std::uint32_t> text_colour_;
    std::size_t selection_start_ = 0;
    std::size_t selection_length_ = 0;
};

}  // namespace platform
