#pragma once

#include "platform/ports/files.h"

#include <string>
#include <vector>

namespace machine::posix {

/// The Files port's operations on a folder's entries, with the machine's path. They raise a RuntimeError for
/// a folder that cannot be read.
std::vector<platform::FileEntry> files_of(const std::string& folder, platform::TextView pattern);
std::vector<platform::Text> folders_of(const std::string& folder);
void remove_files_of(const std::string& folder, platform::TextView pattern);

}  // namespace machine::posix
