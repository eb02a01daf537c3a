#include "machine/qt/widgets/multiline_edit.h"

#include "machine/qt/typing/composition.h"
#include "machine/qt/typing/conversion.h"

#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QTextBlock>
#include <QTextDocument>
#include <algorithm>

namespace machine::qt {

MultilineEdit::MultilineEdit(QWidget* parent) : QPlainTextEdit(parent) {
    setTabChangesFocus(true);
    connect(this, &QPlainTextEdit::textChanged, this, &MultilineEdit::tell_later);
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, &MultilineEdit::tell_later);
    connect(this, &QPlainTextEdit::selectionChanged, this, &MultilineEdit::tell_later);
}

QString MultilineEdit::committed_text() const { return to_lines(document()->toRawText()); }

void MultilineEdit::write(const QString& text) {
    const QString present = committed_text();
    const auto [end, new_end] = std::mismatch(present.begin(), present.end(), text.begin(), text.end());
    const qsizetype same = end - present.begin();
    qsizetype tail = 0;
    const qsizetype longest_tail = std::min(present.size(), text.size()) - same;
    while (tail < longest_tail && present[present.size() - 1 - tail] == text[text.size() - 1 - tail]) ++tail;

    QTextCursor cursor(document());
    cursor.beginEditBlock();
    cursor.setPosition(static_cast<int>(same));
    cursor.setPosition(static_cast<int>(present.size() - tail), QTextCursor::KeepAnchor);
    cursor.insertText(text.mid(same, text.size() - tail - same));
    cursor.endEditBlock();
}

void MultilineEdit::keyPressEvent(QKeyEvent* event) {
    note_key();
    if (platform::KeyPressed key{key_code(*event)}; !key.swallowed()) {
        emit key_pressed(key);
        if (key.swallowed()) return event->accept();
    }
    work([&] { QPlainTextEdit::keyPressEvent(event); });
}

void MultilineEdit::inputMethodEvent(QInputMethodEvent* event) {
    if (!note_composition(*this, *event)) return event->accept();
    work([&] { QPlainTextEdit::inputMethodEvent(event); });
}

void MultilineEdit::focusOutEvent(QFocusEvent* event) {
    if (event->reason() != Qt::PopupFocusReason) commit_composition(*this);
    QPlainTextEdit::focusOutEvent(event);
}

bool MultilineEdit::viewportEvent(QEvent* event) {
    // The click moves the caret away from the unfinished syllable, which Qt would discard.
    if (event->type() == QEvent::MouseButtonPress) commit_composition(*this);
    bool handled = false;
    work([&] { handled = QPlainTextEdit::viewportEvent(event); });
    return handled;
}

void MultilineEdit::insertFromMimeData(const QMimeData* source) {
    textCursor().insertText(to_lines(source->text()));
    ensureCursorVisible();
}

void MultilineEdit::work(const std::function<void()>& step) {
    {
        const QScopedValueRollback<int> working(working_, working_ + 1);
        step();
    }
    if (working_ == 0) emit edited();
}

/// For changes without an event of this widget, such as those from its context menu.
void MultilineEdit::tell_later() {
    if (working_ == 0) QMetaObject::invokeMethod(this, &MultilineEdit::edited, Qt::QueuedConnection);
}

}  // namespace machine::qt
