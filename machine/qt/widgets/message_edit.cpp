#include "machine/qt/widgets/message_edit.h"

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

MessageEdit::MessageEdit(QWidget* parent) : QPlainTextEdit(parent) {
    setTabChangesFocus(true);
    connect(this, &QPlainTextEdit::textChanged, this, &MessageEdit::tell_later);
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, &MessageEdit::tell_later);
    connect(this, &QPlainTextEdit::selectionChanged, this, &MessageEdit::tell_later);
}

QString MessageEdit::committed_text() const { return to_lines(document()->toRawText()); }

void MessageEdit::write(const QString& text) {
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

void MessageEdit::keyPressEvent(QKeyEvent* event) {
    note_key();
    if (platform::KeyPressed key{key_code(*event)}; !key.swallowed()) {
        emit key_pressed(key);
        if (key.swallowed()) return event->accept();
    }
    work([&] { QPlainTextEdit::keyPressEvent(event); });
}

void MessageEdit::inputMethodEvent(QInputMethodEvent* event) {
    if (!note_composition(*this, *event)) return event->accept();
    work([&] { QPlainTextEdit::inputMethodEvent(event); });
}

void MessageEdit::focusOutEvent(QFocusEvent* event) {
    if (event->reason() != Qt::PopupFocusReason) commit_composition(*this);
    QPlainTextEdit::focusOutEvent(event);
}

bool MessageEdit::viewportEvent(QEvent* event) {
    // The click moves the caret away from the unfinished syllable, which Qt would discard.
    if (event->type() == QEvent::MouseButtonPress) commit_composition(*this);
    bool handled = false;
    work([&] { handled = QPlainTextEdit::viewportEvent(event); });
    return handled;
}

void MessageEdit::insertFromMimeData(const QMimeData* source) {
    textCursor().insertText(to_lines(source->text()));
    ensureCursorVisible();
}

void MessageEdit::work(const std::function<void()>& step) {
    {
        const QScopedValueRollback<int> working(working_, working_ + 1);
        step();
    }
    if (working_ == 0) emit edited();
}

/// For changes without an event of this widget, such as those from its context menu.
void MessageEdit::tell_later() {
    if (working_ == 0) QMetaObject::invokeMethod(this, &MessageEdit::edited, Qt::QueuedConnection);
}

}  // namespace machine::qt
