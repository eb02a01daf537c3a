#include "machine/qt/widgets/multiline_edit.h"

#include "machine/qt/look/colours.h"
#include "machine/qt/look/edges.h"
#include "machine/qt/typing/composition.h"
#include "machine/qt/typing/conversion.h"
#include "machine/qt/typing/undoing.h"
#include "platform/text/cp949.h"

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
    set_tabs();
    connect(this, &QPlainTextEdit::textChanged, this, &MultilineEdit::mark_lost);
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
    // What handlers write in answer to an edit, or one after the other, is taken back with it.
    joins_last_step_ ? cursor.joinPreviousEditBlock() : cursor.beginEditBlock();
    cursor.setPosition(static_cast<int>(same));
    cursor.setPosition(static_cast<int>(present.size() - tail), QTextCursor::KeepAnchor);
    cursor.insertText(text.mid(same, text.size() - tail - same));
    cursor.endEditBlock();
    if (joins_last_step_) return;
    joins_last_step_ = true;
    QMetaObject::invokeMethod(
        this, [this] { joins_last_step_ = false; }, Qt::QueuedConnection);
}

QSize MultilineEdit::sizeHint() const {
    QSize size = QPlainTextEdit::sizeHint();
    const double margins = 2 * (document()->documentMargin() + frameWidth());
    if (lines_ > 0) size.setHeight(lines_ * fontMetrics().lineSpacing() + static_cast<int>(margins) + 2);
    return size;
}

QSize MultilineEdit::minimumSizeHint() const {
    return lines_ > 0 ? QSize(QPlainTextEdit::minimumSizeHint().width(),
                              sizeHint().height() - fontMetrics().lineSpacing())
                      : QPlainTextEdit::minimumSizeHint();
}

void MultilineEdit::keyPressEvent(QKeyEvent* event) {
    note_key();
    if (platform::KeyPressed key{key_code(*event)}; !key.swallowed()) {
        emit key_pressed(key);
        if (key.swallowed()) return event->accept();
    }
    work([&] { is_second_redo(*event) ? redo() : QPlainTextEdit::keyPressEvent(event); });
}

void MultilineEdit::inputMethodEvent(QInputMethodEvent* event) {
    if (!note_composition(*this, *event)) return event->accept();
    work([&] { QPlainTextEdit::inputMethodEvent(event); });
}

void MultilineEdit::focusInEvent(QFocusEvent* event) {
    QPlainTextEdit::focusInEvent(event);
    show_focus_around();
}

void MultilineEdit::focusOutEvent(QFocusEvent* event) {
    if (event->reason() != Qt::PopupFocusReason) commit_composition(*this);
    QPlainTextEdit::focusOutEvent(event);
    show_focus_around();
}

void MultilineEdit::show_focus_around() {
    if (QWidget* panel = edge_around(*this); panel != nullptr) panel->update();
}

void MultilineEdit::changeEvent(QEvent* event) {
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) mark_lost();
    if (event->type() == QEvent::FontChange) set_tabs();
}

/// Lines copied from a table stay in columns: a tab is wider than a number.
void MultilineEdit::set_tabs() {
    setTabStopDistance(fontMetrics().horizontalAdvance(QStringLiteral("010-0000-0000  ")));
}

bool MultilineEdit::viewportEvent(QEvent* event) {
    // The click moves the caret away from the unfinished syllable, which Qt would discard.
    if (event->type() == QEvent::MouseButtonPress) commit_composition(*this);
    bool handled = false;
    work([&] { handled = QPlainTextEdit::viewportEvent(event); });
    return handled;
}

/// A file that is dragged here is for the panel around the field, not its path for the text.
bool MultilineEdit::canInsertFromMimeData(const QMimeData* source) const {
    return !source->hasUrls() && QPlainTextEdit::canInsertFromMimeData(source);
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
    if (working_ == 0) tell();
}

void MultilineEdit::tell() {
    const QScopedValueRollback<bool> joining(joins_last_step_, true);
    emit edited();
}

/// For changes without an event of this widget, such as those from its context menu.
void MultilineEdit::tell_later() {
    if (working_ == 0) QMetaObject::invokeMethod(this, &MultilineEdit::tell, Qt::QueuedConnection);
}

void MultilineEdit::mark_lost() {
    if (!marks_lost_) return;
    const auto lost = platform::lost_in_cp949(to_text(committed_text()));
    if (lost.empty() && extraSelections().isEmpty()) return;
    const QColor failure = colours_of(palette()).failure;
    QTextCharFormat format;
    const QColor base = palette().color(QPalette::Base);
    // A tint of the ground would not be seen in high contrast.
    const bool high = is_high_contrast(palette());
    format.setBackground(high ? failure : between(base, failure, 0.2));
    if (high) format.setForeground(base);
    format.setUnderlineColor(failure);
    format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
    QList<QTextEdit::ExtraSelection> marks;
    for (const platform::TextRange& range : lost) {
        QTextCursor cursor(document());
        cursor.setPosition(static_cast<int>(range.start));
        cursor.setPosition(static_cast<int>(range.start + range.length), QTextCursor::KeepAnchor);
        marks.append({cursor, format});
    }
    setExtraSelections(marks);
}

}  // namespace machine::qt
