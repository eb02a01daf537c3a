#include "machine/qt/binders/text_box_binder.h"

#include "machine/qt/typing/composition.h"
#include "machine/qt/typing/field_events.h"
#include "machine/qt/typing/text_conversion.h"
#include "machine/qt/widgets/message_edit.h"

#include <QLineEdit>
#include <QScopedValueRollback>

namespace machine::qt {

using platform::Aspect;
using platform::KeyPressed;
using platform::Text;
using platform::TextBox;

TextBoxBinder::TextBoxBinder(BoundForm& bound, TextBox& control, QWidget& widget)
    : WidgetBinder(bound, control, widget), control_(control), widget_(widget) {
    if (control.text_colour()) show_colour();
}

void TextBoxBinder::refresh(Aspect aspect) {
    if (aspect == Aspect::text) {
        write_back();
    } else if (aspect == Aspect::selection) {
        select_as_model();
    } else if (aspect == Aspect::colour) {
        show_colour();
    } else {
        WidgetBinder::refresh(aspect);
    }
}

void TextBoxBinder::show_colour() {
    QPalette palette;
    if (const auto colour = control_.text_colour())
        palette.setColor(QPalette::Text, QColor::fromRgb(QRgb(*colour)));
    widget_.setPalette(palette);
}

void TextBoxBinder::press_key(KeyPressed& key) {
    // A key that an input method lets go while a box of the field's handlers is open would open another one.
    // Its text waits as any edit does.
    if (!is_live() || edits_.running()) return;
    edits_.run([&] { control_.KeyPress.raise(key); });
    edits_.settle();
    if (!is_live()) key.swallow();
}

void TextBoxBinder::edited() {
    if (writing_ || !is_live()) return;
    edits_.settle();
    if (!is_live() || edits_.waiting()) return;
    const Selection now = selection();
    const std::size_t start = program_position(control_.text(), now.start);
    control_.user_selection(start, program_position(control_.text(), now.end) - start);
}

void TextBoxBinder::hand_over() {
    Text text = program_text(widget_text());
    const std::size_t caret = program_position(text, selection().caret);
    control_.user_edit(std::move(text), caret);
}

void TextBoxBinder::write_back() {
    const QString text = shown_text(control_.text());
    if (text != widget_text()) {
        // A syllable that is begun at a place which is gone would be put into the new text, or in twice.
        drop_composition(widget_);
        const QScopedValueRollback<bool> writing(writing_, true);
        write(text);
    }
    edits_.written();
    select_as_model();
}

void TextBoxBinder::select_as_model() {
    const QScopedValueRollback<bool> writing(writing_, true);
    const Text& text = control_.text();
    const std::size_t start = control_.selection_start();
    const std::size_t end = start + control_.selection_length();
    if (!edits_.waiting()) {
        select(shown_position(text, start), shown_position(text, end));
    } else if (start == text.size()) {
        // Behind the end is also behind what the user has added meanwhile.
        const int behind = static_cast<int>(widget_text().size());
        select(behind, behind);
    }
}

MessageBinder::MessageBinder(BoundForm& bound, TextBox& control, MessageEdit& edit)
    : TextBoxBinder(bound, control, edit), edit_(edit) {
    write_back();
    connect(&edit, &MessageEdit::key_pressed, this, [this](KeyPressed& key) { press_key(key); });
    connect(&edit, &MessageEdit::edited, this, [this] { edited(); });
}

QString MessageBinder::widget_text() const { return edit_.committed_text(); }

void MessageBinder::write(const QString& text) { edit_.write(text); }

void MessageBinder::select(int start, int end) {
    QTextCursor cursor = edit_.textCursor();
    if (cursor.selectionStart() == start && cursor.selectionEnd() == end) return;
    cursor.setPosition(start);
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    edit_.setTextCursor(cursor);
}

TextBoxBinder::Selection MessageBinder::selection() const {
    const QTextCursor cursor = edit_.textCursor();
    return {cursor.selectionStart(), cursor.selectionEnd(), cursor.position()};
}

LineBinder::LineBinder(BoundForm& bound, TextBox& control, QLineEdit& edit)
    : TextBoxBinder(bound, control, edit), edit_(edit) {
    write_back();
    // Its own signals come in the midst of its work; they are waited out here, and those of menus are taken
    // later.
    const auto tell_later = [this] {
        if (!working_) QMetaObject::invokeMethod(this, &LineBinder::join_lines, Qt::QueuedConnection);
    };
    connect(&edit, &QLineEdit::textChanged, this, tell_later);
    connect(&edit, &QLineEdit::cursorPositionChanged, this, tell_later);
    connect(&edit, &QLineEdit::selectionChanged, this, tell_later);
}

bool LineBinder::filter(QObject&, QEvent& event) {
    return filter_field_event(
        edit_, event, [this](KeyPressed& key) { press_key(key); },
        [this](bool begins) {
            working_ = begins;
            if (!begins) join_lines();
        });
}

/// A paste may bring line ends, which have no place in one line.
void LineBinder::join_lines() {
    const auto one_line = [](const QString& text) { return to_lines(text).remove(u'\n'); };
    if (const QString text = edit_.text(); has_edit() && text != one_line(text)) {
        const auto caret = one_line(text.left(edit_.cursorPosition())).size();
        const QScopedValueRollback<bool> working(working_, true);
        edit_.setText(one_line(text));
        edit_.setCursorPosition(static_cast<int>(caret));
    }
    edited();
}

QString LineBinder::widget_text() const { return edit_.text(); }

void LineBinder::write(const QString& text) { edit_.setText(text); }

void LineBinder::select(int start, int end) {
    if (start == end) {
        edit_.deselect();
        edit_.setCursorPosition(start);
    } else {
        edit_.setSelection(start, end - start);
    }
}

TextBoxBinder::Selection LineBinder::selection() const {
    const int caret = edit_.cursorPosition();
    if (!edit_.hasSelectedText()) return {caret, caret, caret};
    return {edit_.selectionStart(), edit_.selectionEnd(), caret};
}

}  // namespace machine::qt
