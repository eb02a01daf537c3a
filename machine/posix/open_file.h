#pragma once

#include "platform/ports/files.h"

#include <memory>
#include <string>

namespace machine::posix {

/// The normal file of the machine's path, its user's alone when it is new, open for writing from its
/// beginning. A link is not followed. Raises RuntimeError when it cannot be opened.
std::unique_ptr<platform::OpenFile> open_file_for_writing(const std::string& path);

}  // namespace machine::posix
