#pragma once

#include "platform/error.h"

#include <string>

namespace platform::posix {

/// What failed, for the user: the classic number of a system call's `errno`, where `path` is the machine's
/// path of a file.
RuntimeError file_error(int code, const std::string& path);
/// The same of a folder.
RuntimeError folder_error(int code);

}  // namespace platform::posix
