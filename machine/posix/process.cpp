#include "machine/posix/process.h"

#include <csignal>
#include <filesystem>
#include <system_error>

namespace machine::posix {

void enter_application_directory(const Paths& paths) {
    std::error_code ignored;
    std::filesystem::current_path(paths.application_directory(), ignored);
}

void take_file_size_limit_as_full_disk() { std::signal(SIGXFSZ, SIG_IGN); }

}  // namespace machine::posix
