#pragma once

#include "platform/text/text.h"

#include <QWidget>
#include <functional>
#include <map>
#include <memory>

namespace machine::qt {

/// The frame of a window that stands in front of another: it can be closed, but not minimised, which would
/// take the whole program off the screen.
inline constexpr Qt::WindowFlags DIALOG_FRAME =
    Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint;

/// Builds each form's window with its widgets from its compiled Designer file.
class Screens {
  public:
    /// Adds a screen: `Ui` is the compiled Designer file, `Window` the class of its root widget.
    template <class Ui, class Window>
    void add(platform::TextView form) {
        builders_[platform::Text(form)] = [] {
            auto window = std::make_unique<Window>();
            Ui().setupUi(window.get());
            return window;
        };
    }

    /// A new window for the form, not shown yet. Throws std::logic_error for a form without a screen, which
    /// is a mistake in the program.
    std::unique_ptr<QWidget> build(const platform::Text& form) const;

  private:
    std::map<platform::Text, std::function<std::unique_ptr<QWidget>()>> builders_;
};

/// The screens of this program.
Screens program_screens();

}  // namespace machine::qt
