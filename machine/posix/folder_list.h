#pragma once

#include "platform/ports/files.h"

#include <string>
#include <vector>

namespace machine::posix {

/// What the Files port tells of a folder, here by the machine's path. Raises a RuntimeError for a folder that
/// cannot be read.
std::vector<platform::FileEntry> files_of(const std::string& folder, platform::TextView pattern);
std::vector<platform::Text> folders_of(const std::string& folder);
void remove_files_of(const std::string& folder, platform::TextView pattern);

}  // namespace machine::posix
