#pragma once

#include "platform/ports/files.h"

#include <memory>
#include <optional>
#include <string>

namespace machine::posix {

/// The bytes of a normal file. Never waits: anything else, a folder, a device or a pipe, is RuntimeError 75.
std::string read_whole_file(const std::string& path);
/// The same; nothing where no file of this name is.
std::optional<std::string> read_if_there(const std::string& path);

/// Who may read a new file: its user alone, or whoever may read the old one and else whoever may read what
/// the user's other programs write.
enum class Readers { user_alone, as_usual };

/// Puts a file of these bytes in the place of the old one in a single step: whenever the program or the
/// machine stops, the old file is there or the new one. Raises a RuntimeError and leaves the old file when
/// that fails.
void replace_file(const std::string& path, const std::string& bytes, Readers readers);

/// Removes what a killed program left of new files in the folder.
void remove_remains(const std::string& folder);

/// The normal file of the machine's path, open for writing from its beginning; a new one only its user may
/// read. A link is not followed. Raises RuntimeError when it cannot be opened.
std::unique_ptr<platform::OpenFile> open_file_for_writing(const std::string& path);

}  // namespace machine::posix
