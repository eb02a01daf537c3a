#include "machine/qt/look/edges.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QGroupBox>

namespace machine::qt {

namespace {

bool has_no_edge(const QWidget* widget) {
    const auto* frame = qobject_cast<const QFrame*>(widget);
    return frame != nullptr && frame->frameShape() == QFrame::NoFrame;
}

}  // namespace

QWidget* edge_around(const QWidget& field) {
    if (!has_no_edge(&field) || qobject_cast<const QAbstractScrollArea*>(&field) == nullptr) return nullptr;
    QWidget* panel = field.parentWidget();
    while (has_no_edge(panel)) panel = panel->parentWidget();
    return panel;
}

bool shows_focus_within(const QWidget* panel) {
    const QWidget* field = QApplication::focusWidget();
    return panel != nullptr && field != nullptr && edge_around(*field) == panel;
}

QRect edge_below_title(const QGroupBox& group) {
    constexpr int AIR = 3;
    const int title = group.title().isEmpty() ? 0 : group.fontMetrics().height();
    return group.rect().adjusted(0, title + AIR, 0, 0);
}

}  // namespace machine::qt
