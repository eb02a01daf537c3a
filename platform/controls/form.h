#pragma once

#include "platform/controls/control.h"

#include <vector>

namespace platform {

class Desktop;

enum class WindowState { normal = 0, minimised = 1, maximised = 2 };

/// Position and size of a window on the monitor, in twips (1440 to the inch, 15 to a pixel at 96 dpi).
struct Placement {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    bool operator==(const Placement&) const = default;
};

/// The window's side of a form.
class FormView {
  public:
    virtual ~FormView() = default;
    virtual void caption_changed() = 0;
    virtual void placement_changed() = 0;
    virtual void minimum_size_changed() = 0;
    /// Resizes the window to fit its contents and reports the new size to the form.
    virtual void fit_contents() = 0;
};

/// A window of the system as a model: its controls, and the handlers of its life.
///
/// A form is loaded once before it is shown, activated each time its window becomes the active one, and
/// unloaded once; it cannot be shown again afterwards. The code that opens a form makes, shows and destroys
/// it.
class Form {
  public:
    Form(Desktop& desktop, TextView name);
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;
    /// Destroying a loaded form closes its window without running the unload handler.
    virtual ~Form();

    const Text& name() const { return name_; }
    /// The controls that have a widget, in the order in which they were made.
    const std::vector<Control*>& controls() const { return controls_; }

    const Text& caption() const { return caption_; }
    void set_caption(Text caption);

    const Text& tag() const { return tag_; }
    void set_tag(Text tag) { tag_ = std::move(tag); }

    /// Runs the load handler unless it has run already. Showing the form does the same.
    void load();
    void show();
    /// Returns when the form is unloaded; a form that unloads itself while loading is never shown.
    void show_modal();
    void unload();
    bool loaded() const { return loaded_; }
    /// Whether the user's input is for this form.
    bool takes_input() const;

    WindowState window_state() const { return window_state_; }
    void set_window_state(WindowState state);
    const Placement& placement() const { return placement_; }
    void move(const Placement& placement);
    /// Resizes the window to fit its contents. To be called when their texts and pictures are set.
    void fit_contents();
    /// Smallest size that the user can drag the window to, in pixels.
    void set_minimum_size(int width, int height);
    int minimum_width() const { return minimum_width_; }
    int minimum_height() const { return minimum_height_; }

    const Control* focused() const { return focused_; }

    // What the window reports.
    void window_activated() { Form_Activate(); }
    /// The user closed the window by its frame.
    void close_requested();
    void escape_pressed();
    /// The user moved the window or changed its size or state.
    void window_placed(const Placement& placement, WindowState state);
    /// The user moved the focus; nothing happens when it stays where it was.
    void move_focus(Control* control);

    void attach(FormView* view) { view_ = view; }

  protected:
    virtual void Form_Load() {}
    virtual void Form_Activate() {}
    virtual void Form_Unload() {}
    virtual void Form_Escape() {}
    /// What the close button of the frame does.
    virtual void Form_Close() { unload(); }

    Desktop& desktop() const { return desktop_; }

  private:
    friend class Control;
    void add(Control& control) { controls_.push_back(&control); }
    /// Takes the focus from a control that is no longer visible, without waiting for the window to report it.
    void leave_hidden();

    Desktop& desktop_;
    Text name_;
    Text caption_;
    Text tag_;
    std::vector<Control*> controls_;
    FormView* view_ = nullptr;
    Control* focused_ = nullptr;
    /// The control that raised GotFocus last; only that one raises LostFocus.
    Control* entered_ = nullptr;
    Placement placement_;
    WindowState window_state_ = WindowState::normal;
    int minimum_width_ = 0;
    int minimum_height_ = 0;
    bool load_ran_ = false;
    bool loaded_ = false;
};

}  // namespace platform
