#pragma once

#include "platform/error.h"

#include <string>

namespace machine::posix {

/// What failed, for the user: the classic number of a system call's `errno`, where `path` is the machine's
/// path of a file.
platform::RuntimeError file_error(int code, const std::string& path);
/// The same of a folder.
platform::RuntimeError folder_error(int code);

}  // namespace machine::posix
