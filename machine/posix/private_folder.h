#pragma once

#include <string>

namespace machine::posix {

/// Makes the folder and those above it, for the user alone. Errors are ignored here; they surface when
/// something is written there.
void make_private_folder(const std::string& path);

}  // namespace machine::posix
