#pragma once

#include "platform/ports/files.h"

#include <string>
#include <vector>

namespace platform::posix {

/// What the Files port tells of a folder, here by the machine's path. Raises a RuntimeError for a folder that
/// cannot be read.
std::vector<FileEntry> files_of(const std::string& folder, TextView pattern);
std::vector<Text> folders_of(const std::string& folder);
void remove_files_of(const std::string& folder, TextView pattern);

}  // namespace platform::posix
