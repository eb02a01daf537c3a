#pragma once

#include "platform/controls/control.h"

#include <vector>

namespace platform {

class Desktop;

enum class WindowState { normal = 0, minimised = 1, maximised = 2 };

/// Place and size of a window on the screen, in twips (1440 to the inch, 15 to a pixel at 96 dpi).
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
    /// Gives the window the size that its contents take and tells the form.
    virtual void fit_contents() = 0;
};

/// A window of the system as a model: its controls, and the handlers of its life.
///
/// A form is loaded once before it shows, activated each time its window becomes the active one, and ends
/// with its own unload, after which it is to be thrown away. Whoever opens a form makes it, shows it and
/// drops it.
class Form {
  public:
    Form(Desktop& desktop, TextView name);
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;
    /// A form that is dropped while it is loaded takes its window with it, without the unload handler.
    virtual ~Form();

    const Text& name() const { return name_; }
    /// The controls with a place on the screen, in the order of their making.
    const std::vector<Control*>& controls() const { return controls_; }

    const Text& caption() const { return caption_; }
    void set_caption(Text caption);

    const Text& tag() const { return tag_; }
    void set_tag(Text tag) { tag_ = std::move(tag); }

    /// Runs the load handler, once; showing does it too.
    void load();
    void show();
    /// Returns when the form is unloaded; a form that unloads itself while loading is never shown.
    void show_modal();
    void unload();
    bool loaded() const { return loaded_; }

    WindowState window_state() const { return window_state_; }
    void set_window_state(WindowState state);
    const Placement& placement() const { return placement_; }
    void move(const Placement& placement);
    /// Makes the window as large as what it holds, once its texts and pictures are there.
    void fit_contents();
    /// Smallest size that the user can drag the window to, in pixels.
    void set_minimum_size(int width, int height);
    int minimum_width() const { return minimum_width_; }
    int minimum_height() const { return minimum_height_; }

    const Control* focused() const { return focused_; }

    // What the window reports.
    void window_activated() { Form_Activate(); }
    /// The user closed the window by its frame.
    void close_requested() { Form_Close(); }
    void escape_pressed() { Form_Escape(); }
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
    /// What is no longer on the screen has lost the focus, whenever the window tells where it went.
    void leave_hidden();

    Desktop& desktop_;
    Text name_;
    Text caption_;
    Text tag_;
    std::vector<Control*> controls_;
    FormView* view_ = nullptr;
    Control* focused_ = nullptr;
    /// The control that has been told of the focus; only that one is told of its loss.
    Control* entered_ = nullptr;
    Placement placement_;
    WindowState window_state_ = WindowState::normal;
    int minimum_width_ = 0;
    int minimum_height_ = 0;
    bool load_ran_ = false;
    bool loaded_ = false;
};

}  // namespace platform
