#pragma once

#include "platform/text/text.h"

namespace core {

/// The digits of the trimmed text, joined; the trimmed text itself when it has none or they make 0.
platform::Text DIGITS_ONLY(platform::TextView value);

/// The number as people write it, "010-2000-0236"; one that is not of a Korean form stays as it is.
platform::Text with_hyphens(platform::TextView number);

/// Whether the number may receive text messages: every number but those with a Korean area code.
bool TEXT_NUMBER_OK(platform::TextView number);

/// Whether the number may receive fax messages: neither a mobile one nor one of the unified numbers.
bool FAX_NUMBER_OK(platform::TextView number);

/// The name without ":" and ";", with which the carrier tells a name from its number and one recipient from
/// the next.
platform::Text without_separators(platform::TextView name);

}  // namespace core
