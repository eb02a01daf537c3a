#pragma once

#include "platform/controls/fields.h"

#include <QPlainTextEdit>
#include <functional>

namespace machine::qt {

/// A field of several lines of plain text that tells of an edit when it is over.
///
/// The toolkit's editor signals a change in the midst of its own work and on every step of a Hangul
/// composition, where a handler that cuts the text or opens a box would pull the ground from under it.
class MessageEdit : public QPlainTextEdit {
    Q_OBJECT

  public:
    explicit MessageEdit(QWidget* parent = nullptr);

    /// The text without what an input method has unfinished; line ends are "\n".
    QString committed_text() const;

    /// Makes this the text and touches only what differs, so that the caret's surroundings and undo stay.
    void write(const QString& text);

  signals:
    /// A key that will change the text; swallowed, it never reaches the field.
    void key_pressed(platform::KeyPressed& key);

    /// The field is done with a key, a composition step, a paste or the like, and text or caret may be
    /// others.
    void edited();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;

  private:
    void work(const std::function<void()>& step);
    void tell_later();

    int working_ = 0;
};

}  // namespace machine::qt
