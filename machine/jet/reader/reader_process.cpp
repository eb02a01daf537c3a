#include "machine/jet/reader/reader_process.h"

#include "platform/error.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace machine::jet {

namespace {

constexpr std::size_t CHUNK_BYTES = 65536;

/// Sets the standard files of the process: input is the database, output the pipe, errors go nowhere.
class StandardFiles {
  public:
    StandardFiles(int input, int output) {
        ::posix_spawn_file_actions_init(&actions_);
        ::posix_spawn_file_actions_adddup2(&actions_, input, STDIN_FILENO);
        ::posix_spawn_file_actions_adddup2(&actions_, output, STDOUT_FILENO);
        ::posix_spawn_file_actions_addopen(&actions_, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    }
    StandardFiles(const StandardFiles&) = delete;
    StandardFiles& operator=(const StandardFiles&) = delete;
    ~StandardFiles() { ::posix_spawn_file_actions_destroy(&actions_); }

    const posix_spawn_file_actions_t* get() const { return &actions_; }

  private:
    posix_spawn_file_actions_t actions_;
};

}  // namespace

ReaderProcess::ReaderProcess(const std::string& program, int file) : chunk_(CHUNK_BYTES, '\0') {
    const platform::RuntimeError failure(platform::ErrorNumber::database_unusable,
                                         u"데이터베이스를 읽는 프로그램을 시작할 수 없습니다.");
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0) throw failure;
    output_ = posix::FileDescriptor(ends[0]);
    const posix::FileDescriptor input(ends[1]);

    std::string name = program;
    char* arguments[] = {name.data(), nullptr};
    char* environment[] = {nullptr};
    const StandardFiles files(file, input.number());
    if (::posix_spawn(&id_, program.c_str(), files.get(), nullptr, arguments, environment) != 0) {
        id_ = -1;
        throw failure;
    }
}

ReaderProcess::~ReaderProcess() {
    if (id_ < 0) return;
    ::kill(id_, SIGKILL);
    while (::waitpid(id_, nullptr, 0) < 0 && errno == EINTR) {
    }
}

ReaderProcess::News ReaderProcess::wait(std::chrono::milliseconds longest, std::string_view& bytes) {
    pollfd output{output_.number(), POLLIN, 0};
    if (::poll(&output, 1, static_cast<int>(longest.count())) <= 0) return News::nothing;
    const ssize_t got = ::read(output_.number(), chunk_.data(), chunk_.size());
    if (got < 0) return errno == EINTR ? News::nothing : News::end;
    bytes = std::string_view(chunk_).substr(0, static_cast<std::size_t>(got));
    return got == 0 ? News::end : News::bytes;
}

}  // namespace machine::jet
