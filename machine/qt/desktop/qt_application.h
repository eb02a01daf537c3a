#pragma once

#include "platform/error.h"

#include <QApplication>
#include <functional>

namespace machine::qt {

/// A QApplication that shows what a handler failed with instead of ending, so that the user's draft survives.
class QtApplication : public QApplication {
  public:
    using QApplication::QApplication;

    /// Calls `show` for every failure that the handlers let through, memory that is not there included.
    /// Without it the failure ends the program.
    void show_errors_with(std::function<void(const platform::RuntimeError&)> show) {
        show_ = std::move(show);
    }

    bool notify(QObject* receiver, QEvent* event) override;

  private:
    std::function<void(const platform::RuntimeError&)> show_;
};

}  // namespace machine::qt
