#pragma once

#include "platform/text/text.h"

#include <string_view>

namespace handover {

/// The text of one of the card manager's files from its bytes in cp949. Every line end becomes a line feed,
/// and a NUL, which no message can hold, becomes a blank.
platform::Text handed_over_text(std::string_view bytes);

/// What the signal asks for: a page, by the card manager's number for it, or a tab. Anything but a 16-bit
/// number asks for the first tab, as 0 does.
int value_of_signal(platform::TextView signal);

/// The recipient of each line in turn. A field that a line lacks keeps its value from the line before.
struct HandedOverRecipient {
    platform::Text name, number, title;

    /// Returns false for a line that is too short to hold a recipient, which is left out.
    bool read(platform::TextView line);
};

}  // namespace handover
