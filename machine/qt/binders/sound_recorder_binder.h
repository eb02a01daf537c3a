#pragma once

#include "machine/qt/binders/binder.h"
#include "platform/controls/sound_recorder.h"

#include <functional>

class QAbstractButton;

namespace machine::qt {

class RecorderPanel;

class SoundRecorderBinder : public BinderOf<platform::SoundRecorder, RecorderPanel> {
  public:
    SoundRecorderBinder(BoundForm& bound, platform::SoundRecorder& control, RecorderPanel& panel);

  private:
    void show(platform::Aspect aspect) override;
    bool filter(QObject& object, QEvent& event) override;
    void open();
    void connect_button(QAbstractButton& button, std::function<void()> press);

    bool seen_ = false;
};

}  // namespace machine::qt
