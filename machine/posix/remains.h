#pragma once

#include <string>
#include <string_view>

/// What a killed program leaves in the middle of writing a file: a file is written under a name of its own,
/// renamed to one that holds its target's name as soon as it is whole, and then renamed to its target.
namespace machine::posix {

/// What the name of a file begins with that is still being written. A remaining one is half a file.
inline constexpr std::string_view UNFINISHED = ".zent-new-";

/// Where a whole new file waits for its place at the path.
std::string waiting_path(const std::string& path);

/// Gives the path the whole file that waits for it, unless the file there has been changed since.
void bring_in(const std::string& path);

/// Brings in every file that waits in the folder, and removes the unfinished ones.
void settle_remains(const std::string& folder);

}  // namespace machine::posix
