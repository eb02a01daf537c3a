#pragma once

#include "machine/posix/file_descriptor.h"

#include <string>

namespace machine::posix {

/// Lets one instance of an installation run for each user: a lock on a file in the user's own folder, where
/// nobody else can take it. The kernel frees it however the process ends.
class InstanceLock {
  public:
    /// `folder` is made when it is not there.
    InstanceLock(std::string folder, std::string application_directory);

    /// Takes the lock and keeps it. False when another process has it; where there can be no lock, everybody
    /// counts as the only one.
    bool take();

  private:
    std::string folder_;
    std::string application_directory_;
    FileDescriptor held_;
};

}  // namespace machine::posix
