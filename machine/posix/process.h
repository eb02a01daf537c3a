#pragma once

namespace machine::posix {

/// Lets a write beyond the user's limit for files fail like one on a full disk, instead of ending the
/// program.
void take_file_size_limit_as_full_disk();

}  // namespace machine::posix
