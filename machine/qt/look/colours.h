#pragma once

#include <QColor>
#include <QPalette>

namespace machine::qt {

/// The few colours that the program paints with besides those of the desktop. Each can be read on the
/// desktop's windows and lists, light or dark.
struct Colours {
    /// The one colour that says where to press: the primary button, the focus, what is chosen.
    QColor accent;
    /// Text beside the main thing: hints, what is done.
    QColor muted;
    QColor failure;
    QColor warning;
    QColor success;
    /// Edges and separators.
    QColor line;
};

Colours colours_of(const QPalette& palette);

/// Whether the desktop shows light text on dark windows.
bool is_dark(const QPalette& palette);

/// Whether the desktop shows pure white and black alone, for users who see badly. Nothing is pale there.
bool is_high_contrast(const QPalette& palette);

/// The colour at that share of the way from one colour to another: 0 is `from`, 1 is `to`.
QColor between(const QColor& from, const QColor& to, double share);

/// How well one colour can be read on another: 1 (not at all) to 21, as web accessibility counts.
double contrast(const QColor& one, const QColor& other);

/// The roles of the palette in which labels find these colours, which no text of Qt's has.
inline constexpr QPalette::ColorRole MUTED_TEXT = QPalette::PlaceholderText;
inline constexpr QPalette::ColorRole FAILURE_TEXT = QPalette::BrightText;
inline constexpr QPalette::ColorRole WARNING_TEXT = QPalette::LinkVisited;

/// The desktop's palette made fit to read: an accent where the desktop has none of its own, pale selections
/// in windows and lists without the focus, disabled texts that still can be read.
void make_readable(QPalette& palette);

/// Whether the accent is the program's own, because the desktop had none.
bool has_own_colours(const QPalette& palette);

/// The program's own colours, fit to read. The light ones are a palette without colours, which stands for the
/// one that the program begins with.
QPalette own_palette(bool dark, bool high_contrast);

}  // namespace machine::qt
