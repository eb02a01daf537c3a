#pragma once

#include <string>

namespace platform::posix {

/// The bytes of a normal file. Never waits: anything else, a folder, a device or a pipe, is RuntimeError 75.
std::string read_whole_file(const std::string& path);

/// Puts a file of these bytes, its user's alone, in the place of the old one in a single step: whenever the
/// program or the machine stops, the old file is there or the new one. Raises a RuntimeError and leaves the
/// old file when that fails.
void replace_file(const std::string& path, const std::string& bytes);

}  // namespace platform::posix
