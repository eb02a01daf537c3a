#include "machine/qt/typing/undoing.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>

namespace machine::qt {

void write_undoably(QLineEdit& field, const QString& text) {
    field.selectAll();
    field.insert(text);
}

bool is_second_redo(const QKeyEvent& key) {
    return key.key() == Qt::Key_Y && key.modifiers() == Qt::ControlModifier;
}

void redo(QWidget& field) {
    auto* line = qobject_cast<QLineEdit*>(&field);
    if (const auto* list = qobject_cast<QComboBox*>(&field)) line = list->lineEdit();
    if (line != nullptr) line->redo();
}

}  // namespace machine::qt
