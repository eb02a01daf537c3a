#pragma once

#include "platform/text/text.h"

#include <QWidget>
#include <functional>
#include <map>
#include <memory>

namespace machine::qt {

/// The screen of each form: what builds its window with its widgets, compiled from the form's Designer file.
class Screens {
  public:
    /// Enters a screen: `Ui` is the compiled Designer file, `Window` the class of its root widget.
    template <class Ui, class Window>
    void add(platform::TextView form) {
        builders_[platform::Text(form)] = [] {
            auto window = std::make_unique<Window>();
            Ui().setupUi(window.get());
            return window;
        };
    }

    /// A new window for the form, not shown yet. A form without a screen is a fault of the program:
    /// std::logic_error.
    std::unique_ptr<QWidget> build(const platform::Text& form) const;

  private:
    std::map<platform::Text, std::function<std::unique_ptr<QWidget>()>> builders_;
};

/// The screens of this program.
Screens program_screens();

}  // namespace machine::qt
