#include "machine/posix/posix_shell.h"

#include "tests/support/child_process.h"
#include "tests/support/files_on_disk.h"

#include <cerrno>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

using namespace platform;
using namespace machine::posix;
namespace fs = std::filesystem;

TEST(PosixShell, ASecondInstanceSeesTheFirstUntilItIsKilled) {
    const tests::TemporaryFolder folder;
    const fs::path application = folder.path() / "app";
    const fs::path own = folder.path() / "home/.config/cardvale";
    fs::create_directories(application / "other");
    fs::create_directory_symlink(application, folder.path() / "link");
    const auto shell_in = [&](const fs::path& directory) {
        return PosixShell{Paths(Installation::in_one_folder(directory, own))};
    };
    tests::Pipe started;
    tests::ChildProcess first([&] {
        PosixShell shell = shell_in(application);
        if (shell.another_instance_runs() || shell.another_instance_runs()) return 1;
        started.signal();
        for (;;) ::pause();
    });
    ASSERT_TRUE(started.wait());

    PosixShell second = shell_in(application);
    EXPECT_TRUE(second.another_instance_runs());
    EXPECT_TRUE(shell_in(folder.path() / "link").another_instance_runs()) << "one folder by two ways";
    EXPECT_EQ(tests::names_in(own).size(), 1u) << "no trace";
    EXPECT_FALSE(shell_in(application / "other").another_instance_runs()) << "another installation";

    first.kill();
    EXPECT_FALSE(second.another_instance_runs());

    for (const auto& lock : fs::directory_iterator(own))
        EXPECT_EQ(lock.status().permissions(), fs::perms(0600)) << "another user must not take it";
    EXPECT_EQ(fs::status(own).permissions(), fs::perms(0700));
}

/// A program that opens things: it reports the number of its arguments and the first of them.
struct Opener {
    Opener() {
        ::mkfifo(fifo.c_str(), 0600);
        tests::put(program, "#!/bin/sh\nprintf '%s' \"$#:$1\" > '" + fifo.string() + "'\n");
        fs::permissions(program, fs::perms(0755));
    }

    /// Waits for the opener to write.
    std::string answer() const { return tests::bytes_of(fifo); }

    tests::TemporaryFolder folder;
    fs::path fifo = folder.path() / "answer";
    fs::path program = folder.path() / "opener";
    PosixShell shell{Paths(folder.path()), program};
};

TEST(PosixShell, OpeningPassesThePathAsOneArgumentAndLeavesNoDeadProcess) {
    Opener opener;
    opener.shell.open(u"c:\\temp\\$(touch 나쁜) \"파일\".wav");
    const std::string path = opener.folder.path() / "drive_c/temp/$(touch 나쁜) \"파일\".wav";
    EXPECT_EQ(opener.answer(), "1:" + path);
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD) << "the opener is nobody's child";
}

TEST(PosixShell, OnlyPagesReachTheBrowser) {
    Opener opener;
    for (const TextView refused :
         {u"", u" ", u"file:///etc/passwd", u"mailto:a@b.example", u"javascript:alert(1)", u"about:config",
          u"tel:15880000", u"www.a.example:x", u"vnd.a:1@b"})
        opener.shell.open_page(Text(refused));
    // If one of those had been opened, it would be among the answers.
    const std::pair<TextView, const char*> pages[] = {
        {u"https://pondira.example/a?b=$(c)&d='e f'", "1:https://pondira.example/a?b=$(c)&d='e f'"},
        {u"HTTP://폰디라.example", "1:HTTP://폰디라.example"},
        {u"-www.pondira.example", "1:http://-www.pondira.example"},
        {u"www.pondira.example:8080/x", "1:http://www.pondira.example:8080/x"},
        {u"localhost:80", "1:http://localhost:80"},
        {u"www.pondira.example/?u=http://a.example", "1:http://www.pondira.example/?u=http://a.example"},
        {u"about:blank", "1:about:blank"},
    };
    for (const auto& [address, argument] : pages) {
        opener.shell.open_page(Text(address));
        EXPECT_EQ(opener.answer(), argument);
    }
}

TEST(PosixShell, AProgramIsStartedIfItsNameAndItsPermissionAllowIt) {
    const tests::TemporaryFolder folder;
    const fs::path answer = folder.path() / "answer";
    ::mkfifo(answer.c_str(), 0600);
    const auto script = [&](const char* name, const char* text) {
        tests::put(folder.path() / name,
                   std::string("#!/bin/sh\nprintf '%s' \"") + text + " $#\" > '" + answer.string() + "'\n");
        fs::permissions(folder.path() / name, fs::perms(0755));
    };
    script("opener", "opened");
    script("i_update.exe", "started");
    script("song.wav", "started");
    script("page.exe", "started");
    fs::permissions(folder.path() / "page.exe", fs::perms(0644));

    PosixShell shell(Paths(folder.path()), folder.path() / "opener");
    const std::pair<const char16_t*, const char*> rows[] = {
        {u"I_Update.EXE", "started 0"}, {u"song.wav", "opened 1"}, {u"page.exe", "opened 1"}};
    for (const auto& [name, what] : rows) {
        shell.open(name);
        EXPECT_EQ(tests::bytes_of(answer), what) << "reading waits for the program to write";
    }
}

TEST(PosixShell, TheProcessEndsAtOnce) {
    const tests::TemporaryFolder folder;
    tests::ChildProcess process([&]() -> int {
        std::atexit([] { tests::put("exit step", "x"); });
        PosixShell(Paths(folder.path())).end_process();
    });
    EXPECT_EQ(process.wait(), 0);
    EXPECT_TRUE(fs::is_empty(folder.path()));
}

TEST(PosixShell, AFailureToOpenIsSilent) {
    const tests::TemporaryFolder folder;
    PosixShell shell(Paths(folder.path()), folder.path() / "no opener");
    shell.open(u"a.txt");
    shell.open(u"d:\\a.txt");
    shell.open_page(u"http://pondira.example");
}

}  // namespace
