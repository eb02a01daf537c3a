#pragma once

#include "platform/text/text.h"

#include <vector>

namespace platform {

/// Takes the telephone numbers out of a text, however people write them ("010-2000-0236", "010 2000.0236",
/// "+82 (0)10-2000-0236", "(02) 555-1234"), and adds their digits, as they are dialled inside the country.
/// Returns what is left of the text.
Text take_numbers(TextView text, std::vector<Text>& numbers);

}  // namespace platform
