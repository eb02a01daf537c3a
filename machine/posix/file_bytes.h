#pragma once

#include "platform/ports/files.h"

#include <memory>
#include <optional>
#include <string>

namespace machine::posix {

/// The bytes of a normal file. A folder, a device or a pipe raises RuntimeError 75, so this never waits; a
/// file beyond the limit raises RuntimeError 7, so it never ends the memory either.
std::string read_whole_file(const std::string& path, std::uint64_t limit = platform::FILE_LIMIT);
/// The same, or nothing when the file does not exist.
std::optional<std::string> read_if_there(const std::string& path, std::uint64_t limit);

/// Who may read a new file: the user alone, or as usual, those who may read the old file. Without an old file
/// those who may read what the user's other programs write.
enum class Readers { user_alone, as_usual };

/// Replaces the file by one of these bytes in a single step: even when the program or the machine stops in
/// between, there is either the old file or the new one. On failure raises a RuntimeError and keeps the old
/// file.
void replace_file(const std::string& path, const std::string& bytes, Readers readers);

/// Gives a normal file another path in its folder, in a single step, and makes the disk keep it.
void rename_file(const std::string& from, const std::string& to);

/// Opens a normal file for writing from its beginning. A new file may be read by the user alone. A link is
/// not followed. Raises RuntimeError when the file cannot be opened.
std::unique_ptr<platform::OpenFile> open_file_for_writing(const std::string& path);

}  // namespace machine::posix
