#pragma once

#include "platform/text/text.h"

#include <string>
#include <string_view>

namespace machine::posix {

/// The name of a folder's entry as the program writes it. A byte that is not UTF-8, as in names from old
/// disks, becomes a low surrogate of its own, which no other text has, so that the name leads back to its
/// entry.
platform::Text name_of_entry(std::string_view bytes);

/// The reverse: the bytes of the entry.
std::string bytes_of_name(platform::TextView name);

}  // namespace machine::posix
