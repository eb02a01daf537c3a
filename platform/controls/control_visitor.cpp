#include "platform/controls/control_visitor.h"

#include "platform/controls/bars.h"
#include "platform/controls/buttons.h"
#include "platform/controls/displays.h"
#include "platform/controls/fields.h"
#include "platform/controls/list_view.h"
#include "platform/controls/panels.h"
#include "platform/controls/sound_recorder.h"
#include "platform/controls/tree_view.h"
#include "platform/controls/web_browser.h"

namespace platform {

void Animation::accept(ControlVisitor& visitor) { visitor.visit(*this); }
void CheckBox::accept(ControlVisitor& visitor) { visitor.visit(*this); }
void ComboBox::accept(ControlVisitor& visitor) { visitor.visit(*this); }
void CommandButton::accept(ControlVisitor& visitor) { visitor.visit(*this); }
void DatePicker::accept(ControlVisitor& visitor) { visitor.visit(*this); }
void Frame::accept(ControlVisitor& visitor) { visitor.visit(*this); }
void Image::accept(ControlVisitor& visitor) { visitor.visit(*this); }
void Label::accept(ControlVisitor& visitor) { visitor.visit(*this); }
void ListView::accept(ControlVisitor& visitor) { visitor.visit(*this); }
void Menu::accept(ControlVisitor& visitor) { visitor.visit(*this); }
void OptionButton::accept(ControlVisitor& visitor) { visitor.visit(*this); }
void PictureBox::accept(ControlVisitor& visitor) { visitor.visit(*this); }
void ProgressBar::accept(ControlVisitor& visitor) { visitor.visit(*this); }
void SoundRecorder::accept(ControlVisitor& visitor) { visitor.visit(*this); }
void StatusBar::accept(ControlVisitor& visitor) { visitor.visit(*this); }
void TabStrip::accept(ControlVisitor& visitor) { visitor.visit(*this); }
void TextBox::accept(ControlVisitor& visitor) { visitor.visit(*this); }
void ToolBar::accept(ControlVisitor& visitor) { visitor.visit(*this); }
void TreeView::accept(ControlVisitor& visitor) { visitor.visit(*this); }
void WebBrowser::accept(ControlVisitor& visitor) { visitor.visit(*this); }

}  // namespace platform
