#pragma once

#include <QString>
#include <functional>

class QEvent;
class QLineEdit;
class QPoint;

/// Texts that come into a field of one line from elsewhere instead of being typed.
namespace machine::qt {

/// The text that the event would make the field insert: a paste with keys or the middle button, or a drop.
QString text_to_insert(const QEvent& event);

/// The text that a paste inserts.
QString text_to_paste();

/// Whether the text is lines or cells of a table. A single cell ends with a line end too, and belongs in the
/// field.
bool is_table(const QString& text);

/// Opens the field's menu, in which Paste does this.
void open_menu(QLineEdit& field, const QPoint& at, const std::function<void()>& paste);

}  // namespace machine::qt
