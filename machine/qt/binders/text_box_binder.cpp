#include "machine/qt/binders/text_box_binder.h"

#include "machine/qt/binders/drops.h"
#include "machine/qt/typing/composition.h"
#include "machine/qt/typing/conversion.h"
#include "machine/qt/typing/field_events.h"
#include "machine/qt/typing/insertions.h"
#include "machine/qt/typing/undoing.h"
#include "machine/qt/widgets/multiline_edit.h"

#include <QContextMenuEvent>
#include <QDropEvent>
#include <QLineEdit>
#include <QScopedValueRollback>

namespace machine::qt {

using platform::Aspect;
using platform::KeyPressed;
using platform::Text;
using platform::TextBox;

namespace {

QString one_line(const QString& text) { return to_lines(text).remove(u'\n'); }

}  // namespace

TextBoxBinder::TextBoxBinder(BoundForm& bound, TextBox& control, QWidget& widget)
    : BinderOf(bound, control, widget) {
    if (control.text_colour()) show_colour();
}

void TextBoxBinder::show(Aspect aspect) {
    if (aspect == Aspect::text) {
        write_back();
    } else if (aspect == Aspect::selection) {
        select_as_model();
    } else if (aspect == Aspect::colour) {
        show_colour();
    }
}

void TextBoxBinder::show_colour() {
    QPalette palette;
    if (const auto colour = control().text_colour())
        palette.setColor(QPalette::Text, QColor::fromRgb(QRgb(*colour)));
    widget().setPalette(palette);
}

void TextBoxBinder::press_key(KeyPressed& key) {
    // An input method may pass on a key while the field's handlers have a box open, which would open a second
    // one. The text of that key waits as every edit does.
    if (!is_live() || edits_.running()) return;
    edits_.run([&] { control().KeyPress.raise(key); });
    edits_.settle();
    if (!is_live()) key.swallow();
}

void TextBoxBinder::edited() {
    if (writing_ || !is_live()) return;
    edits_.settle();
    if (!is_live() || edits_.waiting()) return;
    const Selection now = selection();
    const std::size_t start = program_position(control().text(), now.start);
    control().user_selection(start, program_position(control().text(), now.end) - start);
}

void TextBoxBinder::give_to_model() {
    if (!control().takes_input()) return write_back();
    Text text = program_text(widget_text());
    const std::size_t caret = program_position(text, selection().caret);
    control().user_edit(std::move(text), caret);
}

void TextBoxBinder::write_back() {
    const QString text = shown_text(control().text());
    if (text != widget_text()) {
        // The input method would put its unfinished syllable into the new text, or put it in twice.
        drop_composition(widget());
        const QScopedValueRollback<bool> writing(writing_, true);
        write(text);
    }
    edits_.written();
    select_as_model();
}

void TextBoxBinder::select_as_model() {
    const QScopedValueRollback<bool> writing(writing_, true);
    const Text& text = control().text();
    const std::size_t start = control().selection_start();
    const std::size_t end = start + control().selection_length();
    if (!edits_.waiting()) {
        select(shown_position(text, start), shown_position(text, end));
    } else if (start == text.size()) {
        // The end is also the end of what the user has added meanwhile.
        const int behind = static_cast<int>(widget_text().size());
        select(behind, behind);
    }
}

MultilineBinder::MultilineBinder(BoundForm& bound, TextBox& control, MultilineEdit& edit)
    : BinderOf(bound, control, edit) {
    write_back();
    connect(&edit, &MultilineEdit::key_pressed, this, [this](KeyPressed& key) { press_key(key); });
    connect(&edit, &MultilineEdit::edited, this, [this] { edited(); });
}

QString MultilineBinder::widget_text() const { return widget().committed_text(); }

void MultilineBinder::write(const QString& text) { widget().write(text); }

void MultilineBinder::select(int start, int end) {
    QTextCursor cursor = widget().textCursor();
    if (cursor.selectionStart() == start && cursor.selectionEnd() == end) return;
    cursor.setPosition(start);
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    widget().setTextCursor(cursor);
}

TextBoxBinder::Selection MultilineBinder::selection() const {
    const QTextCursor cursor = widget().textCursor();
    return {cursor.selectionStart(), cursor.selectionEnd(), cursor.position()};
}

LineBinder::LineBinder(BoundForm& bound, TextBox& control, QLineEdit& edit) : BinderOf(bound, control, edit) {
    write_back();
    // The field signals in the middle of its own work. What keys change is read when that work is over
    // (filter); what a menu changes is read in the next turn of the event loop.
    const auto tell_later = [this] {
        if (!working_) QMetaObject::invokeMethod(this, &LineBinder::join_lines, Qt::QueuedConnection);
    };
    connect(&edit, &QLineEdit::textChanged, this, tell_later);
    connect(&edit, &QLineEdit::cursorPositionChanged, this, tell_later);
    connect(&edit, &QLineEdit::selectionChanged, this, tell_later);
}

bool LineBinder::filter(QObject&, QEvent& event) {
    if (divert_lines(event)) return true;
    if (event.type() == QEvent::KeyPress) {
        KeyPressed key{moving_key_code(static_cast<const QKeyEvent&>(event))};
        if (key.code == platform::KEY_UP || key.code == platform::KEY_DOWN) control().KeyDown.raise(key);
    }
    return filter_field_event(
        widget(), event, [this](KeyPressed& key) { press_key(key); },
        [this](bool begins) {
            working_ = begins;
            if (!begins) join_lines();
        });
}

/// Whether the field must not see the event: it would take lines in as they are, cut a long list short, and
/// bring the line ends back when the user takes back what he pasted.
bool LineBinder::divert_lines(QEvent& event) {
    if (event.type() == QEvent::ContextMenu) {
        open_menu(widget(), static_cast<QContextMenuEvent&>(event).globalPos(), [this] {
            if (is_live()) insert(text_to_paste());
        });
        return true;
    }
    const QString text = text_to_insert(event);
    if (widget().isReadOnly() || (text == one_line(text) && !is_table(text))) return false;
    if (event.type() == QEvent::Drop) {
        auto& drop = static_cast<QDropEvent&>(event);
        answer_drag(drop, true);
        // The field has shown a caret where the text would go.
        QDragLeaveEvent over;
        static_cast<QObject&>(widget()).event(&over);
        widget().setCursorPosition(widget().cursorPositionAt(drop.position().toPoint()));
    }
    insert(text);
    event.accept();
    return true;
}

void LineBinder::insert(const QString& text) {
    if (!take_lines(text)) widget().insert(one_line(text));
}

bool LineBinder::take_lines(const QString& text) {
    const QString lines = to_lines(text);
    if (!control().LinesPasted.connected() || !is_table(lines)) return false;
    // The handler may open a window, for which the field must have done its work.
    QMetaObject::invokeMethod(
        this,
        [this, pasted = program_text(lines)] {
            if (is_live()) control().LinesPasted.raise(pasted);
        },
        Qt::QueuedConnection);
    return true;
}

/// A text of the program's may contain line ends, which do not stay when it is edited.
void LineBinder::join_lines() {
    if (const QString text = widget().text(); has_edit() && text != one_line(text)) {
        const auto caret = one_line(text.left(widget().cursorPosition())).size();
        const QScopedValueRollback<bool> working(working_, true);
        write_undoably(widget(), one_line(text));
        widget().setCursorPosition(static_cast<int>(caret));
    }
    edited();
}

QString LineBinder::widget_text() const { return widget().text(); }

void LineBinder::write(const QString& text) { write_undoably(widget(), text); }

void LineBinder::select(int start, int end) {
    if (start == end) {
        widget().deselect();
        widget().setCursorPosition(start);
    } else {
        widget().setSelection(start, end - start);
    }
}

TextBoxBinder::Selection LineBinder::selection() const {
    const int caret = widget().cursorPosition();
    if (!widget().hasSelectedText()) return {caret, caret, caret};
    return {widget().selectionStart(), widget().selectionEnd(), caret};
}

}  // namespace machine::qt
