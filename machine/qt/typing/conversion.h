#pragma once

#include "platform/text/text.h"

#include <QString>
#include <QtGlobal>
#include <cstddef>

class QKeyEvent;

/// Texts, lengths and keys on Qt's side and on the program's.
namespace machine::qt {

QString to_qstring(platform::TextView text);
platform::Text to_text(const QString& text);

/// A text with line ends as a widget holds it: every kind of line end is one "\n", and there is no NUL.
QString to_lines(const QString& text);

/// The program's text as a widget holds it.
QString shown_text(platform::TextView text);

/// A widget's text as the program holds it, with CR LF for every line end.
platform::Text program_text(const QString& shown);

/// The position in the widget's text that belongs to one in the program's.
int shown_position(platform::TextView text, std::size_t position);

/// The position in the program's text that belongs to one in the widget's.
std::size_t program_position(platform::TextView text, int shown_position);

/// 1440 twips to the inch and 96 of Qt's pixels, whatever the screen's own are.
inline constexpr int TWIPS_PER_PIXEL = 15;

inline int to_twips(int pixels) { return pixels * TWIPS_PER_PIXEL; }
inline int to_pixels(int twips) { return qRound(double(twips) / TWIPS_PER_PIXEL); }

/// The character code of a key as handlers of KeyPress count it: Enter 13, Backspace 8, Ctrl+A 1. 0 for a key
/// that makes no character and for Escape, which the form handles.
int key_code(const QKeyEvent& event);

/// The code of a key that moves through rows or pages, 0 for any other.
int moving_key_code(const QKeyEvent& event);

}  // namespace machine::qt
