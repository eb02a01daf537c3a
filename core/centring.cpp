#include "core/centring.h"

namespace core {

platform::Placement centred(const platform::Screen& screen, int width, int height) {
    return {.left = screen.left + (screen.width - width) / 2,
            .top = screen.top + (screen.height - height) / 2,
            .width = width,
            .height = height};
}

void CENTER_FORM(const platform::Desktop& desktop, platform::Form& form) {
    if (form.window_state() != platform::WindowState::normal) return;
    form.move(centred(desktop.screen(), form.placement().width, form.placement().height));
}

}  // namespace core
