#pragma once

#include <QElapsedTimer>
#include <QObject>

namespace machine::qt {

/// F1 in any window of the program, also in a box and in the file dialog. A key that is held counts once.
class HelpKey : public QObject {
    Q_OBJECT

  public:
    HelpKey();

  signals:
    /// Raised when the key's own event is over: what follows may open and close windows.
    void pressed();

  protected:
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    void press(bool repeated);

    QElapsedTimer up_;
};

}  // namespace machine::qt
