#pragma once

#include "platform/controls/fields.h"

#include <QPlainTextEdit>
#include <functional>

namespace machine::qt {

/// A field of several lines of plain text that signals an edit when it is complete.
///
/// Qt's editor signals changes in the middle of its own work and at every step of a Hangul composition. A
/// handler that cuts the text or opens a box at that time would corrupt its state.
class MultilineEdit : public QPlainTextEdit {
    Q_OBJECT
    /// Whether characters that the carrier cannot send are marked.
    Q_PROPERTY(bool marks_lost MEMBER marks_lost_)
    /// How many lines the field is high; 0 for as many as there is room for.
    Q_PROPERTY(int lines MEMBER lines_)

  public:
    explicit MultilineEdit(QWidget* parent = nullptr);

    /// The text without an input method's unfinished syllable; line ends are "\n".
    QString committed_text() const;

    /// Changes the text to this one by replacing only what differs, so that the scroll position and undo
    /// survive.
    void write(const QString& text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  signals:
    /// A key that would change the text. If it is swallowed, the field does not get it.
    void key_pressed(platform::KeyPressed& key);

    /// The field has handled a key, a composition step, a paste or the like; text or caret may have changed.
    void edited();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;

  private:
    void work(const std::function<void()>& step);
    void tell();
    void tell_later();
    void mark_lost();
    void show_focus_around();
    void set_tabs();

    bool marks_lost_ = false;
    int lines_ = 0;
    int working_ = 0;
    /// Whether a write belongs to the last step that the user can take back.
    bool joins_last_step_ = false;
};

}  // namespace machine::qt
