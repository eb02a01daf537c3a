// Calls the carrier's library for the program at the other end of the socket. It is a separate program
// because nobody knows what the library does: crash, hang, end the process, change its state or its memory.

#include "machine/carrier/frame_socket.h"
#include "machine/carrier/host/loaded_library.h"
#include "machine/carrier/protocol.h"
#include "machine/posix/installation.h"
#include "machine/posix/rights.h"

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <sys/prctl.h>
#include <unistd.h>

namespace {

using namespace machine::carrier;

/// Much more than a library for messages can need.
[[maybe_unused]] constexpr rlim_t MOST_MEMORY = rlim_t{2} << 30;
/// No core file: it would hold the password. With 1 the kernel does not even start a program that collects
/// cores.
constexpr rlim_t NO_CORE = 1;

void limit_myself() {
    using machine::posix::lower_limit;
    lower_limit(RLIMIT_CORE, NO_CORE);
#ifdef LIMIT_MEMORY
    lower_limit(RLIMIT_AS, MOST_MEMORY);
#endif
    machine::posix::gain_no_rights();
    // Not to be looked into, and ended with the program.
    const bool done =
        ::prctl(PR_SET_DUMPABLE, 0, 0, 0, 0) == 0 && ::prctl(PR_SET_PDEATHSIG, SIGKILL, 0, 0, 0) == 0;
    if (!done) std::_Exit(EXIT_FAILURE);
}

/// Leaves the library the socket, which it does not know and no program that it starts gets, and standard
/// files, all of them open: what it prints is for the program's error output.
void settle_files() {
    ::close_range(HOST_SOCKET + 1, ~0U, 0);
    ::fcntl(HOST_SOCKET, F_SETFD, FD_CLOEXEC);
    if (::fcntl(STDERR_FILENO, F_GETFD) < 0) ::dup2(STDIN_FILENO, STDERR_FILENO);
    ::dup2(STDERR_FILENO, STDOUT_FILENO);
}

void serve() {
    const pid_t myself = ::getpid();
    const GoesOn for_ever = [] { return true; };
    LoadedLibrary library(machine::posix::this_installation().below);
    WipedBytes frame;
    WipedBytes copies;
    while (receive_frame(HOST_SOCKET, frame, for_ever)) {
        const auto call = parse_call(payload_of(frame));
        if (!call) return;
        const Answer answer = library.run(*call, copies);
        // A library that forks returns twice; the copy of this process must not answer, too.
        if (::getpid() != myself) std::_Exit(EXIT_FAILURE);
        write_answer(answer, frame);
        copies.wipe();
        if (!send_frame(HOST_SOCKET, frame, for_ever)) return;
        frame.wipe();
    }
}

}  // namespace

int main() {
    limit_myself();
    settle_files();
    serve();
}
