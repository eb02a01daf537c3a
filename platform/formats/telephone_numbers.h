#pragma once

#include "platform/text/text.h"

#include <vector>

namespace platform {

/// How likely digits are a telephone number at which the person is reached, the likeliest first.
enum class Likelihood {
    /// Told by the caption of the number's column.
    captioned,
    /// As it is dialled, from inside the country or from abroad.
    dialled,
    /// Like 1588-0000: rather the company's than a person's.
    service,
    /// Digits that need a 0 in front, which other programs drop, or that have merely the right count.
    guessed
};

struct TelephoneNumber {
    /// As they are dialled inside the country.
    Text digits;
    Likelihood likelihood;
};

/// Takes the telephone numbers out of a text, however people write them ("010-2000-0236", "010 2000.0236",
/// "+82 (0)10-2000-0236", "(02) 555-1234"), and adds them. Returns what is left of the text.
Text take_numbers(TextView text, std::vector<TelephoneNumber>& numbers);

}  // namespace platform
