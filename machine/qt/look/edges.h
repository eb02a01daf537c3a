#pragma once

#include <QRect>

class QGroupBox;
class QWidget;

namespace machine::qt {

/// The panel whose edge shows the focus of a field of several lines that has no edge of its own, because it
/// shares the panel's with what stands below it. Null where the field has an edge.
QWidget* edge_around(const QWidget& field);

/// Whether the field with the focus has this panel's edge for its own.
bool shows_focus_within(const QWidget* panel);

/// The place of a group's edge.
QRect edge_below_title(const QGroupBox& group);

}  // namespace machine::qt
