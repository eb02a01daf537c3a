#pragma once

#include <string>

namespace machine::posix {

/// Whether the file is a complete shared library for this machine. The loader does not check: it crashes the
/// process when a half-copied library lacks bytes.
bool is_whole_shared_object(const std::string& path);

}  // namespace machine::posix
