#pragma once

#include "platform/text/text.h"

#include <QString>
#include <cstddef>

namespace machine::qt {

/// The same characters on the toolkit's side and on the program's.
QString to_qstring(platform::TextView text);
platform::Text to_text(const QString& text);

/// A text with line ends as a widget holds it: every kind of line end is one "\n", and there is no NUL.
QString to_lines(const QString& text);

/// The program's text as a widget holds it.
QString shown_text(platform::TextView text);

/// A widget's text as the program holds it, with CR LF for every line end.
platform::Text program_text(const QString& shown);

/// Where a place in the program's text is in the widget's.
int shown_position(platform::TextView text, std::size_t position);

/// Where a place in the widget's text is in the program's.
std::size_t program_position(platform::TextView text, int shown_position);

}  // namespace machine::qt
