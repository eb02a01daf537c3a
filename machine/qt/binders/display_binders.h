#pragma once

#include "machine/qt/binders/binder.h"
#include "platform/controls/displays.h"
#include "platform/controls/panels.h"

#include <QElapsedTimer>

class QFrame;
class QLabel;
class QProgressBar;

namespace machine::qt {

class AnimationPlayer;

class LabelBinder : public BinderOf<platform::Label, QLabel> {
  public:
    LabelBinder(BoundForm& bound, platform::Label& control, QLabel& label);

  private:
    void show(platform::Aspect aspect) override;
    bool filter(QObject& object, QEvent& event) override;
};

class ImageBinder : public BinderOf<platform::Image, QLabel> {
  public:
    ImageBinder(BoundForm& bound, platform::Image& control, QLabel& label);

  private:
    void show(platform::Aspect aspect) override;
    bool filter(QObject& object, QEvent& event) override;
    void show_picture();
};

class FrameBinder : public BinderOf<platform::Frame, QWidget> {
  public:
    FrameBinder(BoundForm& bound, platform::Frame& control, QWidget& widget);

  private:
    bool filter(QObject& object, QEvent& event) override;
};

class PictureBoxBinder : public BinderOf<platform::PictureBox, QFrame> {
  public:
    PictureBoxBinder(BoundForm& bound, platform::PictureBox& control, QFrame& frame);

  private:
    void show(platform::Aspect aspect) override;
    bool filter(QObject& object, QEvent& event) override;
};

class ProgressBarBinder : public BinderOf<platform::ProgressBar, QProgressBar> {
  public:
    ProgressBarBinder(BoundForm& bound, platform::ProgressBar& control, QProgressBar& bar);

  private:
    void show(platform::Aspect aspect) override;

    QElapsedTimer painted_;
};

class AnimationBinder : public BinderOf<platform::Animation, AnimationPlayer> {
  public:
    AnimationBinder(BoundForm& bound, platform::Animation& control, AnimationPlayer& player);

  private:
    void show(platform::Aspect aspect) override;
    void open();
};

}  // namespace machine::qt
