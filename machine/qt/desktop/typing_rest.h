#pragma once

#include <QTimer>
#include <QWidget>

namespace machine::qt {

/// The place in a box that has the focus while the user still types for the field behind it. It keeps what is
/// typed, with or without an input method, and leaves the focus to another once nothing has been typed for
/// half a second.
class TypingRest : public QWidget {
    Q_OBJECT

  public:
    static constexpr std::chrono::milliseconds PAUSE{500};

    explicit TypingRest(QWidget& box);

    /// Takes the focus until `next` is to have it.
    void hold_focus_for(QWidget& next);
    /// To be called when the user can see the box, which was this long after the last key.
    void begin_to_wait(std::chrono::milliseconds since_key);

    const QString& text() const { return text_; }

  protected:
    bool event(QEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;

  private:
    void keep_key(const QKeyEvent& event);
    void wait_on();
    void give_focus_away();

    QWidget* next_ = nullptr;
    QTimer pause_;
    bool waiting_ = false;
    QString text_;
};

}  // namespace machine::qt
