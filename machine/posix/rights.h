#pragma once

#include <sys/resource.h>

namespace machine::posix {

/// Lowers a limit of this process for good; one that is lower already stays. Ends the process where that
/// fails.
void lower_limit(decltype(RLIMIT_CPU) resource, rlim_t most);

/// Makes this process and those it starts gain no rights by starting programs. Ends the process where that
/// fails.
void gain_no_rights();

}  // namespace machine::posix
