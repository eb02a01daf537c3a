#pragma once

namespace platform {

class Animation;
class CheckBox;
class ComboBox;
class CommandButton;
class DatePicker;
class Frame;
class Image;
class Label;
class ListView;
class Menu;
class OptionButton;
class PictureBox;
class ProgressBar;
class SoundRecorder;
class StatusBar;
class TabStrip;
class TextBox;
class ToolBar;
class TreeView;
class WebBrowser;

/// One function for each sort of control. A toolkit overrides all of them, so that a new sort does not
/// compile until it can be shown.
class ControlVisitor {
  public:
    virtual ~ControlVisitor() = default;

    virtual void visit(Animation& control) = 0;
    virtual void visit(CheckBox& control) = 0;
    virtual void visit(ComboBox& control) = 0;
    virtual void visit(CommandButton& control) = 0;
    virtual void visit(DatePicker& control) = 0;
    virtual void visit(Frame& control) = 0;
    virtual void visit(Image& control) = 0;
    virtual void visit(Label& control) = 0;
    virtual void visit(ListView& control) = 0;
    virtual void visit(Menu& control) = 0;
    virtual void visit(OptionButton& control) = 0;
    virtual void visit(PictureBox& control) = 0;
    virtual void visit(ProgressBar& control) = 0;
    virtual void visit(SoundRecorder& control) = 0;
    virtual void visit(StatusBar& control) = 0;
    virtual void visit(TabStrip& control) = 0;
    virtual void visit(TextBox& control) = 0;
    virtual void visit(ToolBar& control) = 0;
    virtual void visit(TreeView& control) = 0;
    virtual void visit(WebBrowser& control) = 0;
};

}  // namespace platform
