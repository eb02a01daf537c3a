#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <chrono>

namespace machine::qt {

/// Notes when the user typed last, anywhere in the program, with or without an input method.
class LastKey : public QObject {
  public:
    LastKey();

    /// How long ago it was.
    std::chrono::milliseconds age() const;
    /// Whether it wrote a character into a field and nothing has been clicked since. Enter does not, nor a
    /// blank on a button.
    bool wrote() const { return wrote_; }

  protected:
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    QElapsedTimer since_;
    bool wrote_ = false;
};

}  // namespace machine::qt
