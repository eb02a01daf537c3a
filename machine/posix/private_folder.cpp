#include "machine/posix/private_folder.h"

#include <filesystem>
#include <sys/stat.h>

namespace machine::posix {

void make_private_folder(const std::string& path) {
    const std::filesystem::path folder(path);
    std::error_code ignored;
    if (std::filesystem::is_directory(folder, ignored)) return;
    if (folder.has_relative_path()) make_private_folder(folder.parent_path());
    ::mkdir(folder.c_str(), S_IRWXU);
}

}  // namespace machine::posix
