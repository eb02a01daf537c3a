#include "machine/posix/process.h"

#include <csignal>

namespace machine::posix {

void take_file_size_limit_as_full_disk() { std::signal(SIGXFSZ, SIG_IGN); }

}  // namespace machine::posix
