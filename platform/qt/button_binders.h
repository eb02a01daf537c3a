#pragma once

#include "platform/controls/check_box.h"
#include "platform/controls/command_button.h"
#include "platform/controls/option_button.h"
#include "platform/qt/binder.h"

class QAbstractButton;
class QCheckBox;
class QRadioButton;

namespace platform::qt {

/// What all buttons have: a caption, and the focus by their key.
class ButtonBinder : public WidgetBinder {
  public:
    ButtonBinder(BoundForm& bound, Control& control, QAbstractButton& button, const Text& caption);

  protected:
    bool filter(QObject& object, QEvent& event) override;
    void set_caption(const Text& caption);

  private:
    void let_out_if_released();

    QAbstractButton& button_;
};

class CommandButtonBinder : public ButtonBinder {
  public:
    CommandButtonBinder(BoundForm& bound, CommandButton& control, QAbstractButton& button);

    void refresh(Aspect aspect) override;

  private:
    CommandButton& control_;
};

class CheckBoxBinder : public ButtonBinder {
  public:
    CheckBoxBinder(BoundForm& bound, CheckBox& control, QCheckBox& box);

    void refresh(Aspect aspect) override;

  private:
    CheckBox& control_;
    QCheckBox& box_;
};

class OptionButtonBinder : public ButtonBinder {
  public:
    OptionButtonBinder(BoundForm& bound, OptionButton& control, QRadioButton& button);

    void refresh(Aspect aspect) override;

  private:
    bool filter(QObject& object, QEvent& event) override;

    OptionButton& control_;
    QRadioButton& button_;
};

}  // namespace platform::qt
