#pragma once

#include "machine/qt/binders/binder.h"
#include "platform/controls/buttons.h"

class QAbstractButton;
class QCheckBox;
class QRadioButton;

namespace machine::qt {

/// What all buttons have: a caption, and the focus by their key.
class ButtonBinder : public WidgetBinder {
  public:
    ButtonBinder(BoundForm& bound, platform::Control& control, QAbstractButton& button,
                 const platform::Text& caption);

  protected:
    bool filter(QObject& object, QEvent& event) override;
    void set_caption(const platform::Text& caption);

  private:
    void let_out_if_released();

    QAbstractButton& button_;
};

class CommandButtonBinder : public ButtonBinder {
  public:
    CommandButtonBinder(BoundForm& bound, platform::CommandButton& control, QAbstractButton& button);

    void refresh(platform::Aspect aspect) override;

  private:
    platform::CommandButton& control_;
};

class CheckBoxBinder : public ButtonBinder {
  public:
    CheckBoxBinder(BoundForm& bound, platform::CheckBox& control, QCheckBox& box);

    void refresh(platform::Aspect aspect) override;

  private:
    platform::CheckBox& control_;
    QCheckBox& box_;
};

class OptionButtonBinder : public ButtonBinder {
  public:
    OptionButtonBinder(BoundForm& bound, platform::OptionButton& control, QRadioButton& button);

    void refresh(platform::Aspect aspect) override;

  private:
    bool filter(QObject& object, QEvent& event) override;

    platform::OptionButton& control_;
    QRadioButton& button_;
};

}  // namespace machine::qt
