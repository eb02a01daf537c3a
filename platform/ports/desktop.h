#pragma once

#include "platform/text/text.h"

#include <memory>
#include <optional>

namespace platform {

class Control;
class Form;
class Menu;

enum class BoxIcon { none, information, question, exclamation, critical };
enum class BoxButtons { ok, yes_no, yes_no_cancel };
enum class BoxAnswer { ok, yes, no, cancel };

/// A modal message. Without a title the window shows the application's title.
struct MessageBox {
    Text text{};
    BoxIcon icon = BoxIcon::none;
    Text title{};
    BoxButtons buttons = BoxButtons::ok;
    /// The button that Enter presses.
    BoxAnswer default_answer = BoxAnswer::ok;
};

/// Asks for a file: one that is there to open, or a name to save under, which may be taken already.
struct FileQuestion {
    enum class Purpose { open, save };

    Purpose purpose = Purpose::open;
    Text title{};
    /// Names and patterns in turn, as "Wav files|*.wav|All files|*.*"; several patterns are joined by ";".
    Text filter{};
    /// What stands in the dialog's field at first: a path, or a name for the folder where the user was last.
    Text file_name{};
};

/// A modal question for a line of text.
struct InputBox {
    Text prompt{};
    Text title{};
    /// Stands in the field, selected.
    Text default_text{};
};

enum class Pointer { normal, hourglass };

/// The screen in twips, and how many of them a pixel has.
struct Screen {
    int width = 0;
    int height = 0;
    int twips_per_pixel_x = 15;
    int twips_per_pixel_y = 15;
};

/// The user, watched while a handler runs: what he does meanwhile is heard when the handler is through.
class InputWatch {
  public:
    virtual ~InputWatch() = default;

    /// Whether the user has pressed a key or a button or moved the mouse since the watch began. Never, on
    /// desktops that do not tell.
    virtual bool input_waits() = 0;
};

/// The user's desktop: windows, boxes, the pointer, the clipboard and the event loop. A port, so that a whole
/// session runs in a test where a script plays the user.
class Desktop {
  public:
    virtual ~Desktop() = default;

    /// Makes the form's window, not shown yet, and gives the form the size that its screen was drawn with.
    virtual void prepare(Form& form) = 0;
    virtual void show(Form& form) = 0;
    /// Returns when the form has been closed.
    virtual void show_modal(Form& form) = 0;
    virtual void close(Form& form) = 0;
    /// Lets the user pick from the menu at the mouse pointer.
    virtual void popup_menu(Form& form, Menu& menu) = 0;
    /// The same right below a control of the form, at its left edge.
    virtual void popup_menu_below(Form& form, Menu& menu, const Control& control) = 0;

    /// Returns the button that the user pressed; closing a box without one gives its cautious answer (no,
    /// cancel, ok).
    virtual BoxAnswer message_box(const MessageBox& box) = 0;

    /// The full path of the user's choice; nothing when he cancels.
    virtual std::optional<Text> ask_for_file(const FileQuestion& question) = 0;

    /// Returns what the user entered; nothing when he cancelled.
    virtual Text input_box(const InputBox& box) = 0;

    virtual void set_pointer(Pointer pointer) = 0;
    virtual void set_clipboard(const Text& text) = 0;
    virtual Screen screen() const = 0;
    virtual void set_application_title(const Text& title) = 0;

    /// Handles the events that wait, once.
    virtual void yield() = 0;
    /// Lets the windows paint themselves in the midst of a long loop, but hears no user. To be called in
    /// every round: it works only as often as an eye can tell.
    virtual void paint() = 0;
    virtual std::unique_ptr<InputWatch> watch_input() = 0;
};

}  // namespace platform
