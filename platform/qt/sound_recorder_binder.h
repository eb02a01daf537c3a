#pragma once

#include "platform/controls/sound_recorder.h"
#include "platform/qt/binder.h"

#include <functional>

class QAbstractButton;

namespace platform::qt {

class RecorderPanel;

class SoundRecorderBinder : public WidgetBinder {
  public:
    SoundRecorderBinder(BoundForm& bound, SoundRecorder& control, RecorderPanel& panel);
    void refresh(Aspect aspect) override;

  private:
    bool filter(QObject& object, QEvent& event) override;
    void open();
    void connect_button(QAbstractButton& button, std::function<void()> press);

    SoundRecorder& control_;
    RecorderPanel& panel_;
    bool seen_ = false;
};

}  // namespace platform::qt
