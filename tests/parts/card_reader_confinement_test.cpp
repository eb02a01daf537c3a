#include "machine/jet/reader/confinement.h"
#include "tests/parts/card_fixtures.h"
#include "tests/support/child_process.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/ptrace.h>
#include <sys/socket.h>

namespace {

/// How a process ends that does this once it is confined.
int end_of_confined(const std::function<void()>& act) {
    tests::ChildProcess child([&] {
        machine::jet::confine_to_open_files();
        act();
        return 7;
    });
    return child.wait();
}

TEST(CardReaderConfinement, EndsAProcessThatWantsMoreThanItsOpenFilesAndMemory) {
    const tests::TemporaryFolder folder;
    const int file = ::open("/dev/zero", O_RDONLY | O_CLOEXEC);
    EXPECT_EQ(end_of_confined([&] {
                  char byte = 0;
                  const std::vector<char> memory(std::size_t{8} << 20);
                  if (::read(file, &byte, 1) != 1) ::_exit(1);
              }),
              7);
    ::close(file);

    char name[] = "/bin/true";
    char* arguments[] = {name, nullptr};
    const std::pair<const char*, std::function<void()>> forbidden[] = {
        {"open", [] { ::open("/etc/passwd", O_RDONLY); }},
        {"create", [] { ::open("new", O_WRONLY | O_CREAT, 0600); }},
        {"remove", [] { ::unlink("new"); }},
        {"socket", [] { ::socket(AF_INET, SOCK_STREAM, 0); }},
        {"fork", [] { ::fork(); }},
        {"execute", [&] { ::execv(name, arguments); }},
        {"look into another process", [] { ::ptrace(PTRACE_ATTACH, ::getppid(), nullptr, nullptr); }},
        {"signal another process", [] { ::kill(::getppid(), 0); }},
    };
    for (const auto& [what, act] : forbidden) EXPECT_EQ(end_of_confined(act), -SIGSYS) << what;
}

/// The reader's state as the system tells it, while it waits for somebody to take what it has read.
std::string state_of_reader() {
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0) return "no pipe";
    ::fcntl(ends[1], F_SETPIPE_SZ, 4096);
    const int file = ::open(tests::CardsOnDisk::fixture("demo").c_str(), O_RDONLY | O_CLOEXEC);
    tests::ChildProcess reader([&] {
        ::dup2(file, STDIN_FILENO);
        ::dup2(ends[1], STDOUT_FILENO);
        return ::execl(CARD_READER, CARD_READER, nullptr);
    });
    ::close(file);
    ::close(ends[1]);
    char byte = 0;
    const bool began = ::read(ends[0], &byte, 1) == 1;
    std::string state =
        began ? tests::bytes_of("/proc/" + std::to_string(reader.id()) + "/status") : "nothing was read";
    ::close(ends[0]);
    return state;
}

TEST(CardReaderConfinement, HoldsForTheReaderBeforeItParsesATable) {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the sanitizers want more of the system";
#endif
    const std::string state = state_of_reader();
    for (const char* line : {"\nSeccomp:\t2\n", "\nNoNewPrivs:\t1\n"})
        EXPECT_NE(state.find(line), std::string::npos) << line << state;
}

}  // namespace
