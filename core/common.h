#pragma once

#include "platform/ports/card_source.h"
#include "platform/text/text.h"

namespace core {

/// Bytes of the text in cp949. Every limit of a message is counted with this and never by characters.
std::size_t BYTE_LEN(platform::TextView text);

/// The digits of the trimmed text, joined; the trimmed text itself when it has none or they make 0.
platform::Text DIGITS_ONLY(platform::TextView value);

/// A text out of a padded buffer: NULs become blanks, blanks at the end go.
platform::Text CLEAN_FIXED_TEXT(platform::TextView text);

/// Whether the number may receive text messages: every number but those with a Korean area code.
bool TEXT_NUMBER_OK(platform::TextView number);

/// Whether the number may receive fax messages: neither a mobile one nor one of the unified numbers.
bool FAX_NUMBER_OK(platform::TextView number);

/// A database field's value as a text: NULL is empty, a number its decimal digits.
platform::Text FIELD_VALUE(platform::CardField field);

}  // namespace core
