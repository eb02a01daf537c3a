#pragma once

#include <QString>

class QKeyEvent;
class QWidget;

/// What the user has typed, between the keys and a field.
namespace machine::qt {

/// The characters that a key writes into a field of one line; none for a command.
QString written_by(const QKeyEvent& event);

/// Types the text into the window's field with the focus, as keys would. Does nothing without such a field. A
/// tab leaves the field, a line end leaves one of one line: what follows was meant for another.
void type_into_focus_of(QWidget& window, const QString& text);

}  // namespace machine::qt
