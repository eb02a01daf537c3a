#pragma once

#include "platform/text/text.h"

#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace platform {

class Control;
class Form;
class Menu;

enum class BoxIcon { none, information, question, exclamation, critical };
enum class BoxButtons { ok, yes_no, yes_no_cancel };
enum class BoxAnswer { ok, yes, no, cancel };

/// A message box. Without a title it shows the application's.
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
    /// What stands in the dialog's field at first: a path, or a file name in the folder where the user was
    /// last.
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

/// The part of the monitor that panels leave to windows, in twips, and how many twips a pixel has.
struct Screen {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    int twips_per_pixel_x = 15;
    int twips_per_pixel_y = 15;
    /// How large the desktop's text is beside the usual one.
    double text_size = 1;
};

/// Watches for the user's input while a handler runs. The input itself is handled after the handler.
class InputWatch {
  public:
    virtual ~InputWatch() = default;

    /// Whether the user has pressed a key or a button or moved the mouse since the watch began. Always false
    /// on a desktop that cannot tell.
    virtual bool input_waits() = 0;
};

/// The user's desktop: windows, boxes, the pointer, the clipboard and the event loop. A port, so that in a
/// test a script can use the whole program in the user's place.
class Desktop {
  public:
    virtual ~Desktop() = default;

    /// Makes the form's window without showing it, and gives the form the size of its screen as drawn.
    virtual void prepare(Form& form) = 0;
    virtual void show(Form& form) = 0;
    /// Shows the form and returns when it is closed.
    virtual void show_modal(Form& form) = 0;
    virtual void close(Form& form) = 0;
    /// Lets the user pick from the menu at the mouse pointer.
    virtual void popup_menu(Form& form, Menu& menu) = 0;
    /// The same, but directly below a control of the form, at its left edge.
    virtual void popup_menu_below(Form& form, Menu& menu, const Control& control) = 0;

    /// Returns the button that the user pressed; closing a box without one gives its cautious answer (no,
    /// cancel, ok).
    virtual BoxAnswer message_box(const MessageBox& box) = 0;

    /// The full path of the user's choice; nothing when the user cancels.
    virtual std::optional<Text> ask_for_file(const FileQuestion& question) = 0;

    /// Returns what the user entered; empty when the user cancels.
    virtual Text input_box(const InputBox& box) = 0;

    virtual void set_pointer(Pointer pointer) = 0;
    virtual void set_clipboard(const Text& text) = 0;
    virtual Text clipboard_text() const = 0;
    virtual Screen screen() const = 0;
    virtual void set_application_title(const Text& title) = 0;
    /// Tells a user who looks at another program that something long has ended. Anybody who sees the screen
    /// may read it.
    virtual void notify(const Text& text) = 0;

    /// Handles the waiting events once.
    virtual void yield() = 0;
    /// Lets the windows paint during a long loop, while input waits. To be called in every round: it acts
    /// only as often as an eye can notice.
    virtual void paint() = 0;
    virtual std::unique_ptr<InputWatch> watch_input() = 0;

    /// Whether the whole program is being closed. Nobody is there then to answer a question.
    virtual bool closes_all() const = 0;

    /// Whether a question waits for the user's answer. Until then nothing may change what it is about.
    bool question_stands() const { return questions_ > 0; }

    /// Whether the user's input is for this form: not while a modal form or a box stands in front of it.
    bool input_is_for(const Form& form) const { return in_front_.empty() || in_front_.back() == &form; }

    /// Sets what help is, told the form that the user wants help with; null for a box.
    void set_help(std::function<void(const Form*)> help) { help_ = std::move(help); }
    /// The user has asked for help in that form's window, or in a box. It is about what stands in front.
    void help_requested(const Form* active) const {
        if (help_) help_(in_front_.empty() ? active : in_front_.back());
    }

  private:
    friend class StandingQuestion;
    friend class StandingInFront;
    std::function<void(const Form*)> help_;
    int questions_ = 0;
    /// The modal forms and boxes, the last one in front; null for a box.
    std::vector<const Form*> in_front_;
};

/// A modal form, or a box, in front of everything else for as long as this object lives. A desktop makes one
/// for each: its toolkit keeps keys and clicks from what is behind, but not what a screen reader presses.
class StandingInFront {
  public:
    explicit StandingInFront(Desktop& desktop, const Form* form = nullptr) : desktop_(desktop) {
        desktop_.in_front_.push_back(form);
    }
    StandingInFront(const StandingInFront&) = delete;
    StandingInFront& operator=(const StandingInFront&) = delete;
    ~StandingInFront() { desktop_.in_front_.pop_back(); }

  private:
    Desktop& desktop_;
};

/// A question that waits for its answer, for as long as this object lives.
class StandingQuestion {
  public:
    explicit StandingQuestion(Desktop& desktop) : desktop_(desktop) { ++desktop_.questions_; }
    StandingQuestion(const StandingQuestion&) = delete;
    StandingQuestion& operator=(const StandingQuestion&) = delete;
    ~StandingQuestion() { --desktop_.questions_; }

  private:
    Desktop& desktop_;
};

}  // namespace platform
