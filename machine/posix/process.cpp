#include "machine/posix/process.h"

#include "machine/posix/private_folder.h"

#include <csignal>
#include <filesystem>
#include <sys/resource.h>
#include <system_error>

namespace machine::posix {

void enter_application_directory(const Paths& paths) {
    make_private_folder(paths.application_directory());
    std::error_code ignored;
    std::filesystem::current_path(paths.application_directory(), ignored);
}

void take_file_size_limit_as_full_disk() { std::signal(SIGXFSZ, SIG_IGN); }

void forbid_core() {
    // A limit of 0 keeps the kernel from writing files only; at 1 byte it starts no collector either.
    const rlimit limit{1, 1};
    ::setrlimit(RLIMIT_CORE, &limit);
}

}  // namespace machine::posix
