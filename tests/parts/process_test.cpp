#include "machine/posix/process.h"

#include "tests/support/child_process.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

namespace {

TEST(Process, WritesNoCoreThatWouldHoldAPassword) {
    const tests::TemporaryFolder folder;
    tests::ChildProcess crashed([] {
        rlimit limit{};
        ::getrlimit(RLIMIT_CORE, &limit);
        limit.rlim_cur = limit.rlim_max;
        ::setrlimit(RLIMIT_CORE, &limit);
        machine::posix::forbid_core();
        ::getrlimit(RLIMIT_CORE, &limit);
        if (limit.rlim_cur != 1) return 1;
        std::abort();
    });
    EXPECT_EQ(crashed.wait(), -SIGABRT) << "1: a collector of cores would get it";
    EXPECT_FALSE(crashed.wrote_core());
}

}  // namespace
