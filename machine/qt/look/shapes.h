#pragma once

#include <QPalette>
#include <QRect>

class QPainter;
class QStyleOption;
class QStyleOptionHeader;
class QStyleOptionProgressBar;
class QStyleOptionSlider;

namespace machine::qt {

/// The shapes of which the program's controls are drawn: boxes with slightly round corners, one line thick.
/// Each takes its colours from the option's palette and its state (enabled, under the mouse, pressed, with
/// the focus).

/// A button. A filled one is the one that Enter presses.
void draw_button(QPainter& painter, const QStyleOption& option, bool filled);

/// A flat button, filled when it is pressed or stays pressed; under the mouse it has an edge alone.
void draw_flat_button(QPainter& painter, const QStyleOption& option);

/// The edge of a field, list or panel.
void draw_edge(QPainter& painter, const QStyleOption& option);

/// The ground of the menu bar, or of an entry in it, with the line below.
void draw_menu_bar(QPainter& painter, const QStyleOption& option);

/// The line in the middle of a menu's or a window's separator.
void draw_separator(QPainter& painter, const QStyleOption& option);

/// The line around what has the focus: the row of a list, the caption of a check box.
void draw_focus(QPainter& painter, const QStyleOption& option);

/// A field to type into or choose from, with its ground.
void draw_field(QPainter& painter, const QStyleOption& option);

/// A small arrow in the colour of texts on that control.
void draw_arrow(QPainter& painter, const QStyleOption& option, const QRect& place,
                Qt::ArrowType direction = Qt::DownArrow, QPalette::ColorRole text = QPalette::Text);

/// The arrow of a folder in a tree, which stands on the selection's colour when the folder is chosen.
void draw_branch(QPainter& painter, const QStyleOption& branch);

/// A scroll bar without its arrows: a quiet track and a thumb that stands out.
void draw_scroll_bar(QPainter& painter, const QStyleOptionSlider& bar, const QRect& thumb);

void draw_check_box(QPainter& painter, const QStyleOption& option);
void draw_radio_button(QPainter& painter, const QStyleOption& option);

/// A tab of a row of tabs; the chosen one has a line of the accent.
void draw_tab(QPainter& painter, const QStyleOption& option, bool chosen);

/// A section of a list's header.
void draw_header(QPainter& painter, const QStyleOptionHeader& header);

/// A bar of progress, or its part that is done.
void draw_bar(QPainter& painter, const QStyleOptionProgressBar& bar, bool done);

}  // namespace machine::qt
