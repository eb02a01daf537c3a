#include "platform/posix/posix_shell.h"

#include "tests/support/child_process.h"
#include "tests/support/files_on_disk.h"

#include <cerrno>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

using namespace platform;
using namespace platform::posix;
namespace fs = std::filesystem;

TEST(PosixShell, ASecondInstanceSeesTheFirstUntilItIsKilled) {
    const tests::TemporaryFolder folder;
    fs::create_directory(folder.path() / "other");
    fs::create_directory_symlink(folder.path(), folder.path() / "link");
    tests::Pipe started;
    tests::ChildProcess first([&] {
        PosixShell shell{Paths(folder.path())};
        if (shell.another_instance_runs() || shell.another_instance_runs()) return 1;
        started.tell();
        for (;;) ::pause();
    });
    ASSERT_TRUE(started.wait());

    PosixShell second{Paths(folder.path())};
    EXPECT_TRUE(second.another_instance_runs());
    EXPECT_TRUE(PosixShell{Paths(folder.path() / "link")}.another_instance_runs())
        << "one folder by two ways";
    EXPECT_FALSE(PosixShell{Paths(folder.path() / "other")}.another_instance_runs())
        << "another installation";
    EXPECT_EQ(tests::names_in(folder.path()), (std::set<std::string>{"other", "link"})) << "no trace";

    first.kill();
    EXPECT_FALSE(second.another_instance_runs());
}

TEST(PosixShell, OpeningHandsThePathOverAsOneArgumentAndLeavesNoDeadProcess) {
    const tests::TemporaryFolder folder;
    const fs::path answer = folder.path() / "answer";
    ::mkfifo(answer.c_str(), 0600);
    const fs::path opener = folder.path() / "opener";
    tests::put(opener, "#!/bin/sh\nprintf '%s' \"$#:$1\" > '" + answer.string() + "'\n");
    fs::permissions(opener, fs::perms(0755));

    PosixShell shell(Paths(folder.path()), opener);
    shell.open(u"c:\\temp\\$(touch 나쁜) \"파일\".wav");
    const std::string path = folder.path() / "drive_c/temp/$(touch 나쁜) \"파일\".wav";
    EXPECT_EQ(tests::bytes_of(answer), "1:" + path) << "reading waits for the opener to write";
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD) << "the opener is nobody's child";
}

TEST(PosixShell, WhatCannotBeOpenedIsSilent) {
    const tests::TemporaryFolder folder;
    PosixShell shell(Paths(folder.path()), folder.path() / "no opener");
    shell.open(u"a.txt");
    shell.open(u"d:\\a.txt");
}

}  // namespace
