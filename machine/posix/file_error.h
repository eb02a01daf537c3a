#pragma once

#include "platform/error.h"

#include <string>

namespace machine::posix {

/// The run-time error for the `errno` of a system call that failed; `path` is the machine's path of a file.
platform::RuntimeError file_error(int code, const std::string& path);
/// The same for a folder.
platform::RuntimeError folder_error(int code);

}  // namespace machine::posix
