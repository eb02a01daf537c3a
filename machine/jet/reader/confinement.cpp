#include "machine/jet/reader/confinement.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <memory>
#include <seccomp.h>
#include <sys/mman.h>

namespace machine::jet {

namespace {

struct ReleaseFilter {
    void operator()(void* filter) const { ::seccomp_release(filter); }
};

}  // namespace

void confine_to_open_files() {
    const std::unique_ptr<void, ReleaseFilter> filter(::seccomp_init(SCMP_ACT_KILL_PROCESS));
    bool done = filter != nullptr;
    const auto allow = [&](int call, auto... conditions) {
        const int result =
            ::seccomp_rule_add(filter.get(), SCMP_ACT_ALLOW, call, sizeof...(conditions), conditions...);
        // Which of the old and new forms of a call a processor has depends on its age.
        done = done && (result == 0 || result == -EDOM);
    };
    for (const int call : {SCMP_SYS(read), SCMP_SYS(pread64), SCMP_SYS(lseek), SCMP_SYS(fstat),
                           SCMP_SYS(write), SCMP_SYS(close), SCMP_SYS(brk), SCMP_SYS(munmap),
                           SCMP_SYS(mremap), SCMP_SYS(madvise), SCMP_SYS(futex), SCMP_SYS(exit_group)}) {
        allow(call);
    }
    // The form of fstat that the C library calls.
    allow(SCMP_SYS(newfstatat), scmp_arg_cmp{3, SCMP_CMP_EQ, AT_EMPTY_PATH, 0});
    constexpr scmp_arg_cmp NO_CODE{2, SCMP_CMP_MASKED_EQ, PROT_EXEC, 0};
    allow(SCMP_SYS(mmap), NO_CODE);
    allow(SCMP_SYS(mprotect), NO_CODE);
    if (!done || ::seccomp_load(filter.get()) != 0) std::_Exit(EXIT_FAILURE);
}

}  // namespace machine::jet
