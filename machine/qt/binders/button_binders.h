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
    ButtonBinder(BoundForm& bound, platform::Control& control, QAbstractButton& button);

  protected:
    bool filter(QObject& object, QEvent& event) override;
    void set_caption(const platform::Text& caption);

  private:
    void let_out_if_released();
    QAbstractButton& button() const;
};

class CommandButtonBinder : public BinderOf<platform::CommandButton, QAbstractButton, ButtonBinder> {
  public:
    CommandButtonBinder(BoundForm& bound, platform::CommandButton& control, QAbstractButton& button);

  private:
    void show(platform::Aspect aspect) override;
};

class CheckBoxBinder : public BinderOf<platform::CheckBox, QCheckBox, ButtonBinder> {
  public:
    CheckBoxBinder(BoundForm& bound, platform::CheckBox& control, QCheckBox& box);

  private:
    void take(bool checked);
    void show(platform::Aspect aspect) override;
};

class OptionButtonBinder : public BinderOf<platform::OptionButton, QRadioButton, ButtonBinder> {
  public:
    OptionButtonBinder(BoundForm& bound, platform::OptionButton& control, QRadioButton& button);

  private:
    void take();
    void show(platform::Aspect aspect) override;
    bool filter(QObject& object, QEvent& event) override;
};

}  // namespace machine::qt
