#pragma once

#include <string>

namespace machine::posix {

/// Whether the file is a shared library of this machine's kind with all its bytes. The loader does not look
/// and ends the process at the first byte that a half copied or downloaded library lacks.
bool is_whole_shared_object(const std::string& path);

}  // namespace machine::posix
