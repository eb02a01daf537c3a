#pragma once

#include "platform/controls/control.h"

#include <cstddef>

namespace platform {

/// A line or paragraph of text on the form.
class Label : public Control {
  public:
    using Control::Control;
    Label(Form& form, TextView name, Text caption) : Control(form, name), caption_(std::move(caption)) {}
    void accept(ControlVisitor& visitor) override;

    const Text& caption() const { return caption_; }
    void set_caption(Text caption) { assign(caption_, std::move(caption), Aspect::caption); }

    UserEvent<> Click{*this};

  private:
    Text caption_;
};

/// A picture on the form: the one that the screen names, or one from a file.
class Image : public Control {
  public:
    using Control::Control;
    void accept(ControlVisitor& visitor) override;

    /// Shows the picture in the file, or nothing when the file is missing or is no picture.
    void set_picture(Text path) { assign(picture_, std::move(path), Aspect::picture); }
    /// Path of the file; empty while the screen's own picture shows.
    const Text& picture() const { return picture_; }

    UserEvent<> Click{*this};

  private:
    Text picture_;
};

/// How far a long operation has come, from 0 to 100.
class ProgressBar : public Control {
  public:
    using Control::Control;
    void accept(ControlVisitor& visitor) override;

    int value() const { return value_; }
    /// Raises RuntimeError 380 outside 0 to 100.
    void set_value(int value);
    /// Shows so many of all as hundredths, without the fraction; `of` is not 0. Run-time error 380 when more
    /// is done than was expected.
    void set_progress(std::size_t done, std::size_t of) { set_value(static_cast<int>(done * 100 / of)); }

  private:
    int value_ = 0;
};

/// Plays a film without sound. A file that is no film shows nothing.
class Animation : public Control {
  public:
    using Control::Control;
    void accept(ControlVisitor& visitor) override;

    /// Loads the film and shows its first frame.
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
