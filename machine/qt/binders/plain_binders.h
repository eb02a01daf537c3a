#pragma once

#include "machine/qt/binders/binder.h"
#include "platform/controls/displays.h"
#include "platform/controls/fields.h"
#include "platform/controls/panels.h"

#include <QElapsedTimer>

class QDateEdit;
class QFrame;
class QLabel;
class QProgressBar;

namespace machine::qt {

class AnimationPlayer;

class LabelBinder : public WidgetBinder {
  public:
    LabelBinder(BoundForm& bound, platform::Label& control, QLabel& label);
    void refresh(platform::Aspect aspect) override;

  private:
    bool filter(QObject& object, QEvent& event) override;

    platform::Label& control_;
    QLabel& label_;
};

class ImageBinder : public WidgetBinder {
  public:
    ImageBinder(BoundForm& bound, platform::Image& control, QLabel& label);
    void refresh(platform::Aspect aspect) override;

  private:
    bool filter(QObject& object, QEvent& event) override;
    void show_picture();

    platform::Image& control_;
    QLabel& label_;
};

class FrameBinder : public WidgetBinder {
  public:
    FrameBinder(BoundForm& bound, platform::Frame& control, QWidget& widget);
};

class PictureBoxBinder : public WidgetBinder {
  public:
    PictureBoxBinder(BoundForm& bound, platform::PictureBox& control, QFrame& frame);
    void refresh(platform::Aspect aspect) override;

  private:
    bool filter(QObject& object, QEvent& event) override;

    platform::PictureBox& control_;
    QFrame& frame_;
};

class ProgressBarBinder : public WidgetBinder {
  public:
    ProgressBarBinder(BoundForm& bound, platform::ProgressBar& control, QProgressBar& bar);
    void refresh(platform::Aspect aspect) override;

  private:
    platform::ProgressBar& control_;
    QProgressBar& bar_;
    QElapsedTimer painted_;
};

class DatePickerBinder : public WidgetBinder {
  public:
    DatePickerBinder(BoundForm& bound, platform::DatePicker& control, QDateEdit& edit);
    void refresh(platform::Aspect aspect) override;

  private:
    bool filter(QObject& object, QEvent& event) override;
    void show_day();
    void take_day();

    platform::DatePicker& control_;
    QDateEdit& edit_;
};

class AnimationBinder : public WidgetBinder {
  public:
    AnimationBinder(BoundForm& bound, platform::Animation& control, AnimationPlayer& player);
    void refresh(platform::Aspect aspect) override;

  private:
    void open();

    platform::Animation& control_;
    AnimationPlayer& player_;
};

}  // namespace machine::qt
