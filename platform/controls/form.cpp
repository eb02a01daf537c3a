#include "platform/controls/form.h"

#include "platform/ports/desktop.h"

namespace platform {

Form::Form(Desktop& desktop, TextView name) : desktop_(desktop), name_(name) {}

Form::~Form() {
    if (loaded_) desktop_.close(*this);
}

void Form::set_caption(Text caption) {
    caption_ = std::move(caption);
    if (view_ != nullptr) view_->caption_changed();
}

void Form::load() {
    if (load_ran_) return;
    load_ran_ = true;
    loaded_ = true;
    desktop_.prepare(*this);
    Form_Load();
}

void Form::show() {
    load();
    if (loaded_) desktop_.show(*this);
}

void Form::show_modal() {
    load();
    if (loaded_) desktop_.show_modal(*this);
}

void Form::unload() {
    if (!loaded_) return;
    loaded_ = false;
    Form_Unload();
    desktop_.close(*this);
}

bool Form::takes_input() const { return desktop_.input_is_for(*this); }

void Form::close_requested() {
    if (takes_input()) Form_Close();
}

void Form::escape_pressed() {
    if (takes_input()) Form_Escape();
}

void Form::set_window_state(WindowState state) {
    window_state_ = state;
    if (view_ != nullptr) view_->placement_changed();
}

void Form::move(const Placement& placement) {
    placement_ = placement;
    if (view_ != nullptr) view_->placement_changed();
}

void Form::fit_contents() {
    if (view_ != nullptr) view_->fit_contents();
}

void Form::set_minimum_size(int width, int height) {
    minimum_width_ = width;
    minimum_height_ = height;
    if (view_ != nullptr) view_->minimum_size_changed();
}

void Form::window_placed(const Placement& placement, WindowState state) {
    placement_ = placement;
    window_state_ = state;
}

void Form::leave_hidden() {
    if (focused_ != nullptr && !focused_->on_screen()) move_focus(nullptr);
}

void Form::move_focus(Control* control) {
    if (control == focused_) return;
    Control* left = std::exchange(entered_, nullptr);
    focused_ = control;
    if (left != nullptr) left->LostFocus.raise();
    // A LostFocus handler may have moved the focus on: that control has raised its GotFocus already, and this
    // one never had the focus.
    if (control == nullptr || focused_ != control) return;
    entered_ = control;
    control->GotFocus.raise();
}

}  // namespace platform
