#include "machine/qt/typing/conversion.h"

#include "platform/controls/fields.h"

#include <QKeyEvent>

namespace machine::qt {

using platform::Text;
using platform::TextView;

namespace {

bool is_line_end(char16_t unit) {
    return unit == u'\r' || unit == u'\n' || unit == QChar::LineSeparator ||
           unit == QChar::ParagraphSeparator;
}

/// How many units form the line end or character at the position.
std::size_t step(TextView text, std::size_t at) {
    return text[at] == u'\r' && at + 1 < text.size() && text[at + 1] == u'\n' ? 2 : 1;
}

/// How many characters the widget shows for the unit: none for a NUL.
int shown_size(char16_t unit) { return unit == u'\0' ? 0 : 1; }

}  // namespace

QString to_qstring(TextView text) {
    return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}

Text to_text(const QString& text) { return text.toStdU16String(); }

QString to_lines(const QString& text) { return shown_text(to_text(text)); }

QString shown_text(TextView text) {
    QString shown;
    shown.reserve(static_cast<qsizetype>(text.size()));
    for (std::size_t at = 0; at < text.size(); at += step(text, at)) {
        if (is_line_end(text[at])) {
            shown += u'\n';
        } else if (text[at] != u'\0') {
            shown += text[at];
        }
    }
    return shown;
}

Text program_text(const QString& shown) {
    return platform::replace_all(to_text(to_lines(shown)), u"\n", platform::CRLF);
}

int shown_position(TextView text, std::size_t position) {
    int shown = 0;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t next = at + step(text, at);
        if (next > position) break;
        shown += shown_size(text[at]);
        at = next;
    }
    return shown;
}

std::size_t program_position(TextView text, int shown_position) {
    std::size_t at = 0;
    for (int shown = 0; at < text.size() && shown < shown_position; at += step(text, at)) {
        shown += shown_size(text[at]);
    }
    return at;
}

int key_code(const QKeyEvent& event) {
    if ((event.modifiers() & (Qt::AltModifier | Qt::MetaModifier)) != 0) return 0;
    switch (event.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return platform::KEY_ENTER;
        case Qt::Key_Backspace:
            return platform::KEY_BACKSPACE;
        case Qt::Key_Delete:
        case Qt::Key_Escape:
            return 0;
        default:
            break;
    }
    // Platforms give a letter with Ctrl different texts.
    if ((event.modifiers() & Qt::ControlModifier) != 0 && event.key() >= Qt::Key_A &&
        event.key() <= Qt::Key_Z) {
        return event.key() - Qt::Key_A + platform::KEY_CTRL_A;
    }
    return event.text().isEmpty() ? 0 : event.text().front().unicode();
}

int moving_key_code(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Up:
            return platform::KEY_UP;
        case Qt::Key_Down:
            return platform::KEY_DOWN;
        case Qt::Key_PageUp:
            return platform::KEY_PAGE_UP;
        case Qt::Key_PageDown:
            return platform::KEY_PAGE_DOWN;
        case Qt::Key_Home:
            return platform::KEY_HOME;
        case Qt::Key_End:
            return platform::KEY_END;
        default:
            return 0;
    }
}

}  // namespace machine::qt
