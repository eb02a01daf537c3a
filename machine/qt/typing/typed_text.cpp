#include "machine/qt/typing/typed_text.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPlainTextEdit>

namespace machine::qt {

namespace {

void press(QWidget& field, int key, const QString& text) {
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&field, &event);
}

}  // namespace

QString written_by(const QKeyEvent& event) {
    const bool command =
        (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
    const QString text = event.text();
    return command || text.isEmpty() || !text.front().isPrint() ? QString() : text;
}

void type_into_focus_of(QWidget& window, const QString& text) {
    QWidget* field = window.focusWidget();
    if (field == nullptr || !field->isEnabled() || !field->testAttribute(Qt::WA_InputMethodEnabled)) return;
    QStringList lines = text.section(u'\t', 0, 0).split(u'\n');
    if (qobject_cast<QPlainTextEdit*>(field) == nullptr) lines.resize(1);
    for (qsizetype line = 0; line < lines.size(); ++line) {
        if (line > 0) press(*field, Qt::Key_Return, QStringLiteral("\r"));
        if (!lines[line].isEmpty()) press(*field, Qt::Key_unknown, lines[line]);
    }
}

}  // namespace machine::qt
