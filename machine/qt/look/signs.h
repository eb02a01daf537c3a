#pragma once

#include <QColor>
#include <QIcon>

namespace machine::qt {

enum class Sign {
    /// A tick.
    done,
    /// A warning triangle.
    attention,
};

/// A small sign beside a text, in the text's colours: the second one is for a chosen row.
QIcon sign_icon(Sign sign, const QColor& colour, const QColor& colour_when_selected);

/// A check box as a picture, for places that hold pictures alone.
QIcon check_box_icon(Qt::CheckState state);

}  // namespace machine::qt
