#include "platform/qt/engine/confinement.h"

#include <cerrno>
#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>

namespace platform::qt {

namespace {

/// Whether a process of the user may have a name space of its own, tried by one that does nothing else.
bool can_have_user_namespace() {
    const pid_t trial = ::fork();
    if (trial == 0) ::_exit(::unshare(CLONE_NEWUSER) == 0 ? 0 : 1);
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

}  // namespace platform::qt
