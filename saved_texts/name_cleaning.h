#pragma once

#include "platform/text/text.h"

namespace saved_texts {

/// What the user typed as a title, without the characters that no file name has and without full stops.
platform::Text clean_title(platform::TextView typed);

/// What the user typed as a category's name, trimmed, without the characters that no folder's name has.
platform::Text clean_category(platform::TextView typed);

}  // namespace saved_texts
