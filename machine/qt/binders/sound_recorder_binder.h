#pragma once

#include "machine/qt/binders/binder.h"
#include "platform/controls/sound_recorder.h"

#include <functional>

class QAbstractButton;

namespace machine::qt {

class RecorderPanel;

class SoundRecorderBinder : public WidgetBinder {
  public:
    SoundRecorderBinder(BoundForm& bound, platform::SoundRecorder& control, RecorderPanel& panel);
    void refresh(platform::Aspect aspect) override;

  private:
    bool filter(QObject& object, QEvent& event) override;
    void open();
    void connect_button(QAbstractButton& button, std::function<void()> press);

    platform::SoundRecorder& control_;
    RecorderPanel& panel_;
    bool seen_ = false;
};

}  // namespace machine::qt
