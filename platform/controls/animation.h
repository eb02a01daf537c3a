#pragma once

#include "platform/controls/control.h"

namespace platform {

/// Plays a film without sound. A file that is no film shows nothing.
class Animation : public Control {
  public:
    using Control::Control;
    void accept(ControlVisitor& visitor) override;

    /// Takes the film and stands on its first picture.
    void open(Text path) {
        path_ = std::move(path);
        playing_ = false;
        refresh(Aspect::picture);
    }
    void play() { assign(playing_, true, Aspect::value); }
    void stop() { assign(playing_, false, Aspect::value); }

    const Text& path() const { return path_; }
    bool playing() const { return playing_; }

  private:
    Text path_;
    bool playing_ = false;
};

}  // namespace platform
