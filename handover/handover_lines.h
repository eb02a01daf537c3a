#pragma once

#include "platform/text/text.h"

#include <string_view>

namespace handover {

/// The text of a file of the card manager's, of its bytes in cp949: every kind of line end is a line feed,
/// and a NUL, which no text to be sent can hold, is a blank.
platform::Text handed_over_text(std::string_view bytes);

/// What the signal asks for: a page by the card manager's number of it, or a tab. What is no number of 16
/// bits asks for the first tab, as 0 does.
int value_of_signal(platform::TextView signal);

/// A recipient as the lines tell, one after the other. A field that a line lacks keeps its value of the line
/// before.
struct HandedOverRecipient {
    platform::Text name, number, title;

    /// Returns false for a line that is too short to hold a recipient, which is left out.
    bool read(platform::TextView line);
};

}  // namespace handover
