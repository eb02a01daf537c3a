#include "platform/controls/animation.h"
#include "platform/controls/check_box.h"
#include "platform/controls/command_button.h"
#include "platform/controls/containers.h"
#include "platform/controls/control_visitor.h"
#include "platform/controls/date_picker.h"
#include "platform/controls/label.h"
#include "platform/controls/menu.h"
#include "platform/controls/option_button.h"
#include "platform/controls/progress_bar.h"
#include "platform/controls/web_browser.h"
#include "platform/error.h"

namespace platform {

void Animation::accept(ControlVisitor& visitor) { visitor.visit(*this); }
void CheckBox::accept(ControlVisitor& visitor) { visitor.visit(*this); }
void CommandButton::accept(ControlVisitor& visitor) { visitor.visit(*this); }
void DatePicker::accept(ControlVisitor& visitor) { visitor.visit(*this); }
void Frame::accept(ControlVisitor& visitor) { visitor.visit(*this); }
void Image::accept(ControlVisitor& visitor) { visitor.visit(*this); }
void Label::accept(ControlVisitor& visitor) { visitor.visit(*this); }
void Menu::accept(ControlVisitor& visitor) { visitor.visit(*this); }
void OptionButton::accept(ControlVisitor& visitor) { visitor.visit(*this); }
void PictureBox::accept(ControlVisitor& visitor) { visitor.visit(*this); }
void ProgressBar::accept(ControlVisitor& visitor) { visitor.visit(*this); }
void WebBrowser::accept(ControlVisitor& visitor) { visitor.visit(*this); }

void ProgressBar::set_value(int value) {
    if (value < 0 || value > 100) throw RuntimeError(ErrorNumber::invalid_property_value);
    assign(value_, value, Aspect::value);
}

}  // namespace platform
