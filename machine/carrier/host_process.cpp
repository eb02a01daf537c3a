#include "machine/carrier/host_process.h"

#include "machine/carrier/protocol.h"
#include "platform/error.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace machine::carrier {

namespace {

/// An answer that is quicker costs the program nothing but the wait.
constexpr timeval SLICE{.tv_sec = 0, .tv_usec = 50'000};

/// How long the library may take to unload.
constexpr std::chrono::seconds CLOSING_TIME{1};
constexpr std::chrono::milliseconds CLOSING_NAP{2};

/// A process group of its own, and the socket in its place among the files.
class StartOptions {
  public:
    explicit StartOptions(int host_socket) {
        ::posix_spawnattr_init(&attributes_);
        ::posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETPGROUP);
        ::posix_spawn_file_actions_init(&files_);
        ::posix_spawn_file_actions_adddup2(&files_, host_socket, HOST_SOCKET);
        ::posix_spawn_file_actions_addopen(&files_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    }
    StartOptions(const StartOptions&) = delete;
    StartOptions& operator=(const StartOptions&) = delete;
    ~StartOptions() {
        ::posix_spawn_file_actions_destroy(&files_);
        ::posix_spawnattr_destroy(&attributes_);
    }

    const posix_spawn_file_actions_t* files() const { return &files_; }
    const posix_spawnattr_t* attributes() const { return &attributes_; }

  private:
    posix_spawn_file_actions_t files_;
    posix_spawnattr_t attributes_;
};

}  // namespace

HostProcess::HostProcess(const std::string& program) {
    const platform::RuntimeError failure(platform::ErrorNumber::library_not_loaded,
                                         u"carrier-host 프로그램을 시작할 수 없습니다.");
    int ends[2];
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0) throw failure;
    socket_ = posix::FileDescriptor(ends[0]);
    const posix::FileDescriptor host_socket(ends[1]);
    ::setsockopt(socket(), SOL_SOCKET, SO_RCVTIMEO, &SLICE, sizeof SLICE);
    ::setsockopt(socket(), SOL_SOCKET, SO_SNDTIMEO, &SLICE, sizeof SLICE);

    std::string name = program;
    char* arguments[] = {name.data(), nullptr};
    const StartOptions options(host_socket.number());
    // The environment is the user's own, as the library has always seen it: proxy, time zone, locale.
    if (::posix_spawn(&id_, program.c_str(), options.files(), options.attributes(), arguments, environ) != 0)
        throw failure;
}

HostProcess::~HostProcess() {
    socket_ = posix::FileDescriptor();
    const auto end = std::chrono::steady_clock::now() + CLOSING_TIME;
    while (!has_ended() && std::chrono::steady_clock::now() < end) std::this_thread::sleep_for(CLOSING_NAP);
    kill();
    // Not waited for: a process that hangs in the kernel would take the program along.
    ::waitpid(id_, nullptr, WNOHANG);
}

bool HostProcess::is_ready() const {
    char unasked = 0;
    const ssize_t got = ::recv(socket(), &unasked, 1, MSG_PEEK | MSG_DONTWAIT);
    return got < 0 && (errno == EAGAIN || errno == EWOULDBLOCK) && !has_ended();
}

bool HostProcess::has_ended() const {
    // The ended process stays until the destructor, so that its number and its group's stay its own.
    siginfo_t info{};
    return ::waitid(P_PID, static_cast<id_t>(id_), &info, WEXITED | WNOHANG | WNOWAIT) != 0 ||
           info.si_pid != 0;
}

void HostProcess::kill() const { ::kill(-id_, SIGKILL); }

}  // namespace machine::carrier
