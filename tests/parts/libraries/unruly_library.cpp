/// A library that does in a submit what its text orders.

#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace {

using Int = std::int32_t;

const pid_t LOADED_BY = ::getpid();

/// The child returns first.
void fork_and_go_on() {
    if (::fork() > 0) ::usleep(50'000);
}

void end_later() {
    std::thread([] {
        ::usleep(20'000);
        std::_Exit(0);
    }).detach();
}

void leave_a_child_and_end() {
    if (::fork() > 0) std::_Exit(0);
    ::sleep(60);
}

void close_all() { ::closefrom(3); }

void put_a_file_in_the_place_of_another() {
    close_all();
    if (std::fopen("not_the_socket", "w") == nullptr) std::_Exit(1);
}

void write_everywhere() {
    for (int file = 1; file < 10; ++file) {
        if (::write(file, "noise\n", 6) < 0) continue;
    }
}

void change_the_process() {
    if (::chdir("/") != 0) std::abort();
    ::umask(0777);
    std::signal(SIGCHLD, SIG_IGN);
    std::printf("noise\n");
    std::fflush(stdout);
}

void take_3_GB() {
    const auto memory = std::make_unique<char[]>(std::size_t{3} << 30);
    // Memory that is never looked at would not be taken.
    volatile char* first = memory.get();
    *first = 1;
}

/// Ends unless there can be no core file.
void want_no_core() {
    rlimit core{};
    ::getrlimit(RLIMIT_CORE, &core);
    if (core.rlim_cur > 1 || ::prctl(PR_GET_DUMPABLE) != 0) std::abort();
}

void hang() {
    for (;;) ::pause();
}

void obey(const std::string& order, char* text) {
    const std::map<std::string, void (*)()> orders = {
        {"segv", [] { std::raise(SIGSEGV); }},
        {"abort", std::abort},
        {"exit", [] { std::exit(0); }},
        {"throw", [] { throw std::runtime_error("the library's own"); }},
        {"close", close_all},
        {"replace", put_a_file_in_the_place_of_another},
        {"noise", write_everywhere},
        {"fork", fork_and_go_on},
        {"child", leave_a_child_and_end},
        {"process", change_the_process},
        {"memory", take_3_GB},
        {"core", want_no_core},
        {"late", end_later},
        {"hang", hang},
    };
    if (order == "overrun") std::memset(text, '!', 8 << 20);
    if (const auto found = orders.find(order); found != orders.end()) found->second();
}

}  // namespace

extern "C" Int fn_x_bind(Int, char*, char*, char*, Int, void (*)(), Int, void (*)(), Int*) { return 1; }
extern "C" Int fn_x_unbind(char*, char*) { return 1; }
extern "C" Int fn_x_submit(Int, char*, char*, char*, char*, Int, char*, char*, char*, Int, char*,
                           char* sms_content, Int, char*) {
    obey(sms_content, sms_content);
    return ::getpid() == LOADED_BY ? 1 : 2;
}
