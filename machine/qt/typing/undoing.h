#pragma once

#include <QString>

class QKeyEvent;
class QLineEdit;
class QWidget;

/// What the user takes back in a text field.
namespace machine::qt {

/// Gives the field this text as one step, which the user can take back like his own.
void write_undoably(QLineEdit& field, const QString& text);

/// Whether the key is Ctrl+Y, which means Redo to people who come from other systems and nothing to Qt here.
bool is_second_redo(const QKeyEvent& key);

/// Redoes in a field or a list with a field.
void redo(QWidget& field);

}  // namespace machine::qt
