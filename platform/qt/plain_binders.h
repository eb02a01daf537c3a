#pragma once

#include "platform/controls/animation.h"
#include "platform/controls/containers.h"
#include "platform/controls/date_picker.h"
#include "platform/controls/label.h"
#include "platform/controls/progress_bar.h"
#include "platform/qt/binder.h"

#include <QElapsedTimer>

class QDateEdit;
class QFrame;
class QLabel;
class QProgressBar;

namespace platform::qt {

class AnimationPlayer;

class LabelBinder : public WidgetBinder {
  public:
    LabelBinder(BoundForm& bound, Label& control, QLabel& label);
    void refresh(Aspect aspect) override;

  private:
    bool filter(QObject& object, QEvent& event) override;

    Label& control_;
    QLabel& label_;
};

class ImageBinder : public WidgetBinder {
  public:
    ImageBinder(BoundForm& bound, Image& control, QLabel& label);
    void refresh(Aspect aspect) override;

  private:
    bool filter(QObject& object, QEvent& event) override;
    void show_picture();

    Image& control_;
    QLabel& label_;
};

class FrameBinder : public WidgetBinder {
  public:
    FrameBinder(BoundForm& bound, Frame& control, QWidget& widget);
};

class PictureBoxBinder : public WidgetBinder {
  public:
    PictureBoxBinder(BoundForm& bound, PictureBox& control, QFrame& frame);
    void refresh(Aspect aspect) override;

  private:
    bool filter(QObject& object, QEvent& event) override;

    PictureBox& control_;
    QFrame& frame_;
};

class ProgressBarBinder : public WidgetBinder {
  public:
    ProgressBarBinder(BoundForm& bound, ProgressBar& control, QProgressBar& bar);
    void refresh(Aspect aspect) override;

  private:
    ProgressBar& control_;
    QProgressBar& bar_;
    QElapsedTimer painted_;
};

class DatePickerBinder : public WidgetBinder {
  public:
    DatePickerBinder(BoundForm& bound, DatePicker& control, QDateEdit& edit);
    void refresh(Aspect aspect) override;

  private:
    bool filter(QObject& object, QEvent& event) override;
    void show_day();
    void take_day();

    DatePicker& control_;
    QDateEdit& edit_;
};

class AnimationBinder : public WidgetBinder {
  public:
    AnimationBinder(BoundForm& bound, Animation& control, AnimationPlayer& player);
    void refresh(Aspect aspect) override;

  private:
    void open();

    Animation& control_;
    AnimationPlayer& player_;
};

}  // namespace platform::qt
