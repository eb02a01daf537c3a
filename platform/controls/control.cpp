#include "platform/controls/control.h"

#include "platform/controls/form.h"

namespace platform {

Control::Control(Form& form, TextView name) : form_(&form), name_(name) { form.add(*this); }

void Control::set_visible(bool on) {
    if (assign(visible_, on, Aspect::visible) && !on && form_ != nullptr) form_->leave_hidden();
}

bool Control::on_screen() const { return visible_ && (container_ == nullptr || container_->on_screen()); }

bool Control::takes_input() const { return form_ == nullptr || form_->takes_input(); }

void Control::set_focus() {
    if (form_ == nullptr || !enabled_ || !on_screen()) return;
    form_->move_focus(this);
    if (has_focus()) refresh(Aspect::focus);
}

bool Control::has_focus() const { return form_ != nullptr && form_->focused() == this; }

}  // namespace platform
