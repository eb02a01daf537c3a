#include "platform/controls/bars.h"

#include "platform/error.h"

namespace platform {

void TabStrip::select(int index) {
    if (index < 1 || static_cast<std::size_t>(index) > captions_.size()) {
        throw RuntimeError(ErrorNumber::subscript_out_of_range);
    }
    selected_ = index;
    refresh(Aspect::value);
    Click.raise();
}

void ToolBar::press(int index) {
    for (Button& button : buttons_) {
        if (button.in_group) button.pressed = false;
    }
    buttons_[static_cast<std::size_t>(index - 1)].pressed = true;
    refresh(Aspect::value);
}

void StatusBar::set_panel_text(int index, Text text) {
    assign(panels_[static_cast<std::size_t>(index - 1)].text, std::move(text), Aspect::text);
}

void StatusBar::set_panel_tool_tip(int index, Text text) {
    assign(panels_[static_cast<std::size_t>(index - 1)].tool_tip, std::move(text), Aspect::text);
}

void StatusBar::set_panel_picture(int index, int picture) {
    assign(panels_[static_cast<std::size_t>(index - 1)].picture, picture, Aspect::picture);
}

}  // namespace platform
