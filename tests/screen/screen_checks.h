#pragma once

#include <QRect>
#include <QWidget>

namespace tests {

/// Lets a window lay itself out.
void settle();

QRect place_in(const QWidget& window, const QWidget& widget);

/// Fails for a shown window that cuts a text, whose Tab jumps up or does not come to every control, in which
/// two keys are alike, a tool tip names another key than the widget has, or a tip is missing.
void expect_good_screen(QWidget& window);

/// Fails for a misspelt picture, which would leave a blank place.
void expect_pictures(const QWidget& screen);

/// Fails for a caption in the screen's file: captions stand in the form's class alone, and the same words in
/// the file would be shown by nobody. Names that begin with "_" are the screen's own.
void expect_no_captions(const QWidget& screen);

}  // namespace tests
