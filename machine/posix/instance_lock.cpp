#include "machine/posix/instance_lock.h"

#include "machine/posix/private_folder.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <utility>

namespace machine::posix {

namespace {

/// The same for one application directory, whatever path leads there.
std::string name_for(const std::string& application_directory) {
    struct stat folder {};
    ::stat(application_directory.c_str(), &folder);
    return "zent-" + std::to_string(folder.st_dev) + "-" + std::to_string(folder.st_ino) + ".lock";
}

}  // namespace

InstanceLock::InstanceLock(std::string folder, std::string application_directory)
    : folder_(std::move(folder)), application_directory_(std::move(application_directory)) {}

bool InstanceLock::take() {
    if (held_.is_open()) return true;
    make_private_folder(folder_);
    const std::string path = folder_ + "/" + name_for(application_directory_);
    // Who can open the file can lock it, so it is opened to the user alone.
    FileDescriptor file(::open(path.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR));
    if (!file.is_open()) return true;
    if (::flock(file.number(), LOCK_EX | LOCK_NB) != 0) return errno != EWOULDBLOCK;
    held_ = std::move(file);
    return true;
}

}  // namespace machine::posix
