#include "machine/qt/modules/web/confinement.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sched.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace machine::qt {

namespace {

bool write_file(const char* path, const char* text) {
    const int file = ::open(path, O_WRONLY | O_CLOEXEC);
    const auto length = static_cast<ssize_t>(std::strlen(text));
    return file >= 0 && ::write(file, text, std::strlen(text)) == length;
}

/// Does what the engine does for its sandbox. Some systems let a user make a name space and then refuse
/// everything in it.
bool shut_in(const char* user, const char* group) {
    return ::unshare(CLONE_NEWUSER) == 0 && write_file("/proc/self/setgroups", "deny") &&
           write_file("/proc/self/uid_map", user) && write_file("/proc/self/gid_map", group) &&
           ::unshare(CLONE_NEWPID | CLONE_NEWNET) == 0;
}

std::string map_to_itself(unsigned id) { return std::to_string(id) + " " + std::to_string(id) + " 1"; }

/// Whether the sandbox works, tried in a child process.
bool can_have_user_namespace() {
    const std::string user = map_to_itself(::geteuid());
    const std::string group = map_to_itself(::getegid());
    const pid_t trial = ::fork();
    if (trial == 0) ::_exit(shut_in(user.c_str(), group.c_str()) ? 0 : 1);
    int status = -1;
    while (trial > 0 && ::waitpid(trial, &status, 0) < 0 && errno == EINTR) {
    }
    return trial > 0 && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

}  // namespace

Confinement confinement() {
    if (::geteuid() == 0) return Confinement::not_for_root;
    return can_have_user_namespace() ? Confinement::possible : Confinement::impossible;
}

}  // namespace machine::qt
