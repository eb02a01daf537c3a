#pragma once

#include "machine/posix/paths.h"

namespace machine::posix {

/// Makes the application directory the current one, from wherever the program was started: the carrier's
/// library is loaded from the current directory. A user's first start finds none and makes it.
void enter_application_directory(const Paths& paths);

/// Lets a write beyond the user's limit for files fail like one on a full disk, instead of ending the
/// program.
void take_file_size_limit_as_full_disk();

/// Lets no crash write out the memory of this process or of those it starts: it may hold the user's password.
void forbid_core();

}  // namespace machine::posix
