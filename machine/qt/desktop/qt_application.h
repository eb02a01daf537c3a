#pragma once

#include "platform/error.h"

#include <QApplication>
#include <functional>

namespace machine::qt {

/// A QApplication that shows an uncaught RuntimeError instead of ending, so that the user's draft survives.
class QtApplication : public QApplication {
  public:
    using QApplication::QApplication;

    /// Calls `show` for every RuntimeError that the handlers let through. Without it the error ends the
    /// program.
    void show_errors_with(std::function<void(const platform::RuntimeError&)> show) {
        show_ = std::move(show);
    }

    bool notify(QObject* receiver, QEvent* event) override;

  private:
    std::function<void(const platform::RuntimeError&)> show_;
};

}  // namespace machine::qt
