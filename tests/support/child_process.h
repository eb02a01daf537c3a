#pragma once

#include <csignal>
#include <cstdlib>
#include <functional>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace tests {

/// A copy of the test's process that runs one function and ends with the number it returns (255 after an
/// exception). The destructor kills it.
class ChildProcess {
  public:
    explicit ChildProcess(const std::function<int()>& work) : id_(::fork()) {
        if (id_ < 0) throw std::runtime_error("no child process");
        if (id_ > 0) return;
        int result = 255;
        try {
            result = work();
        } catch (...) {
            // The exit status reports the failure.
        }
        ::_exit(result);
    }
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;
    ~ChildProcess() { kill(); }

    void kill() {
        if (id_ < 0) return;
        ::kill(id_, SIGKILL);
        wait();
    }

    pid_t id() const { return id_; }
    void signal(int number) const { ::kill(id_, number); }

    /// Waits for the end: the number returned, or the signal that killed it as a negative number.
    int wait() {
        int status = 0;
        ::waitpid(std::exchange(id_, -1), &status, 0);
        wrote_core_ = WIFSIGNALED(status) && WCOREDUMP(status);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    }

    /// Whether its memory was written out at the end that was waited for.
    bool wrote_core() const { return wrote_core_; }

  private:
    pid_t id_;
    bool wrote_core_ = false;
};

/// Limits the size of the files that this process writes. As on a full disk, a write beyond the limit fails;
/// with `kill` it ends the process in the middle of the write.
inline void limit_file_size(rlim_t bytes, bool kill) {
    if (!kill) std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{bytes, bytes};
    ::setrlimit(RLIMIT_FSIZE, &limit);
}

/// Signals from one process to another, a byte each.
class Pipe {
  public:
    Pipe() {
        if (::pipe(ends_) != 0) throw std::runtime_error("no pipe");
    }
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;
    ~Pipe() {
        ::close(ends_[0]);
        if (ends_[1] >= 0) ::close(ends_[1]);
    }

    void signal() const {
        const char byte = '.';
        if (::write(ends_[1], &byte, 1) != 1) std::abort();
    }
    /// Waits for a signal; returns false when the child died without one. The child must have been started
    /// before the first call.
    bool wait() {
        if (ends_[1] >= 0) ::close(std::exchange(ends_[1], -1));
        char byte = 0;
        return ::read(ends_[0], &byte, 1) == 1;
    }

  private:
    int ends_[2];
};

}  // namespace tests
