#include "machine/posix/posix_files.h"

#include "machine/posix/process.h"
#include "platform/text/hangul.h"
#include "tests/support/child_process.h"
#include "tests/support/files_on_disk.h"

#include <ctime>
#include <fcntl.h>
#include <functional>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <vector>

namespace {

using namespace platform;
using namespace machine::posix;
using tests::bytes_of;
using tests::error_number;
using tests::names_in;
using tests::put;
namespace fs = std::filesystem;

const std::set<std::string> NOTHING;

class PosixFilesTest : public testing::Test, protected tests::FilesOnDisk {
  protected:
    mode_t mode_of(const fs::path& path) const {
        struct stat status {};
        ::stat(path.c_str(), &status);
        return status.st_mode & 07777;
    }
};

TEST_F(PosixFilesTest, PathsBelongToTheirDrive) {
    const Paths paths(application);
    const std::string app = application;
    const std::vector<std::pair<Text, std::string>> cases = {
        {u"temp\\isend.text", app + "/temp/isend.text"},
        {u"\\temp\\", app + "/temp"},
        {u"내모음함\\인사.txt", app + "/내모음함/인사.txt"},
        {u"c:\\temp\\tmp.wav", app + "/drive_c/temp/tmp.wav"},
        {u"C:tmp.wav", app + "/drive_c/tmp.wav"},
        {u"z:\\", "/"},
        {u"Z:\\no such\\file", "/no such/file"},
        {u"a\\.\\b\\\\..\\c", app + "/a/c"},
        {u"..\\..\\..\\x", app + "/x"},
        {u"c:\\temp\\..\\..\\..\\x", app + "/drive_c/x"},
        {u"z:\\..\\no such", "/no such"},
    };
    for (const auto& [path, posix] : cases) EXPECT_EQ(paths.to_posix(path), posix) << to_utf8(path);

    EXPECT_EQ(files.application_directory(), u"z:" + replace_all(from_utf8(app), u"/", u"\\"));
    EXPECT_EQ(paths.to_posix(files.application_directory() + u"\\zent.ini"), app + "/zent.ini");
    EXPECT_EQ(Paths::from_posix("/"), u"z:");

    EXPECT_EQ(error_number([&] { paths.to_posix(u"a\\../../etc"); }), 52);
    EXPECT_EQ(error_number([&] { paths.to_posix(Text(u"a\0b", 3)); }), 52);
    EXPECT_EQ(error_number([&] { paths.to_posix(u"d:\\a"); }), 76);
}

TEST_F(PosixFilesTest, NamesMatchExactlyFirstAndThenInAnyCase) {
    fs::create_directory(application / "Temp");
    put(application / "Temp/readme.txt", "lower");
    put(application / "Temp/README.txt", "upper");
    put(application / "Temp/알림A.TXT", "korean");
    put(application / "Temp/\xC7\xD1.txt", "not UTF-8");

    EXPECT_EQ(files.read(u"temp\\readme.txt"), "lower");
    EXPECT_EQ(files.read(u"TEMP\\README.txt"), "upper");
    EXPECT_EQ(files.read(u"temp\\ReadMe.txt"), "upper") << "the same one every time";
    EXPECT_EQ(files.read(u"temp\\알림a.txt"), "korean");
    EXPECT_EQ(files.read(Paths::from_posix(application / "Temp/\xC7\xD1.txt")), "not UTF-8");

    files.write(u"temp\\알림a.txt", "again");
    EXPECT_EQ(bytes_of(application / "Temp/알림A.TXT"), "again") << "not a second file beside the old one";
}

TEST_F(PosixFilesTest, HiddenFilesAndWhatIsNoFileDoNotExist) {
    fs::create_directory(application / "box");
    put(application / "box/.hidden.txt", "");
    fs::create_directory(application / "bare");
    put(application / "bare/bare", "");
    ::mkfifo((application / "box/pipe.snd").c_str(), 0600);
    const std::vector<std::pair<Text, bool>> cases = {
        {u"box\\.hidden.txt", false}, {u"box\\pipe.snd", false}, {u"box\\*hidden*", false},
        {u"bare\\b*.*", false},       {u"bare\\*.*", true},      {u"a/b", false},
    };
    for (const auto& [path, exists] : cases) EXPECT_EQ(files.file_exists(path), exists) << to_utf8(path);
    EXPECT_FALSE(files.folder_exists(u"d:\\"));
}

TEST_F(PosixFilesTest, WhatAnInstallationBringsIsReadBelowTheUsersOwnFilesAndNeverChanged) {
    for (const char* layer : {"administrator", "shared"}) {
        fs::create_directories(folder.path() / layer / "guide");
        installation.below.push_back(folder.path() / layer);
    }
    put(folder.path() / "administrator/urllink.ini", "administrator's");
    put(folder.path() / "shared/urllink.ini", "shared");
    put(folder.path() / "shared/guide/index.html", "guide");
    machine::posix::PosixFiles installed{Paths(installation)};
    const Text links = installed.application_directory() + u"\\urllink.ini";

    EXPECT_EQ(installed.read(links), "administrator's");
    EXPECT_EQ(installed.machine_path(u"guide\\index.html"), folder.path() / "shared/guide/index.html");
    EXPECT_EQ(installed.length(u"guide\\index.html"), 5u);
    EXPECT_FALSE(installed.file_exists(u"guide\\other.html"));
    EXPECT_EQ(installed.machine_path(u"guide\\other.html"), application / "guide/other.html");
    EXPECT_FALSE(installed.folder_exists(u"guide")) << "made above when it is wanted";

    installed.write(links, "own");
    EXPECT_EQ(installed.read(links), "own");
    EXPECT_EQ(bytes_of(folder.path() / "administrator/urllink.ini"), "administrator's");
    installed.remove(links);
    EXPECT_EQ(installed.read(links), "administrator's");
    EXPECT_EQ(error_number([&] { installed.remove(links); }), 53);
}

TEST_F(PosixFilesTest, AFileOfTwoGigabytesIsMeasuredWithoutBeingRead) {
    put(application / "scan.tif", "");
    fs::resize_file(application / "scan.tif", std::uintmax_t{1} << 31);
    EXPECT_EQ(files.length(u"scan.tif"), std::uintmax_t{1} << 31);
}

TEST_F(PosixFilesTest, OnlyTheUserCanReadAWrittenFile) {
    const std::string bytes("\0\r\n\xC7\xD1\x1A end", 10);
    put(application / "old.txt", "old");
    fs::permissions(application / "old.txt", fs::perms(0666));
    files.write(u"old.txt", bytes);
    EXPECT_EQ(files.read(u"old.txt"), bytes);
    EXPECT_EQ(mode_of(application / "old.txt"), 0600u);

    files.write(files.windows_directory() + u"\\zent.ini", "secret");
    EXPECT_EQ(bytes_of(windows / "zent.ini"), "secret");
    EXPECT_EQ(mode_of(windows), 0700u);
    EXPECT_EQ(mode_of(windows / "zent.ini"), 0600u);

    files.make_folder(u"c:\\temp");
    EXPECT_EQ(mode_of(application / "drive_c/temp"), 0700u);
    EXPECT_EQ(names_in(application), (std::set<std::string>{"old.txt", "drive_c"}));
}

TEST_F(PosixFilesTest, AWriteReplacesALinkAndLeavesItsTarget) {
    put(folder.path() / "elsewhere", "theirs");
    fs::create_symlink(folder.path() / "elsewhere", application / "zent.ini");
    files.write(u"zent.ini", "ours");
    EXPECT_EQ(bytes_of(folder.path() / "elsewhere"), "theirs");
    EXPECT_EQ(bytes_of(application / "zent.ini"), "ours");
    EXPECT_FALSE(fs::is_symlink(application / "zent.ini"));
}

TEST_F(PosixFilesTest, RemovingAFolderStaysInsideIt) {
    fs::create_directories(folder.path() / "outside");
    put(folder.path() / "outside/kept", "");
    fs::create_directories(application / "box/a/b");
    put(application / "box/a/b/.c", "");
    fs::create_directory_symlink(folder.path() / "outside", application / "box/a/link");
    fs::create_directory_symlink(folder.path() / "outside", application / "link");

    files.remove_folder(u"box");
    files.remove_folder(u"link");
    EXPECT_EQ(names_in(application), NOTHING);
    EXPECT_EQ(names_in(folder.path() / "outside"), std::set<std::string>{"kept"});
}

TEST_F(PosixFilesTest, AListLeavesOutHiddenFilesAndComposesSyllables) {
    const std::string apart = to_utf8(decompose_hangul(u"하.txt"));
    fs::create_directories(application / "box/나");
    fs::create_directories(application / "box/.a");
    for (const char* name : {"A.txt", "가.txt", ".c.txt", "e\\f.txt"}) put(application / "box" / name, name);
    put(application / "box" / apart, "apart");
    fs::create_symlink(application / "box/A.txt", application / "box/z.txt");
    const timespec times[2] = {{0, 0}, {1'700'000'000, 0}};
    ::utimensat(AT_FDCWD, (application / "box/A.txt").c_str(), times, 0);

    const auto names = [&](TextView pattern) {
        std::vector<std::string> listed;
        for (const FileEntry& file : files.list_files(u"box", pattern)) listed.push_back(to_utf8(file.name));
        return listed;
    };
    EXPECT_EQ(names(u"*.txt"), (std::vector<std::string>{"A.txt", "가.txt", "하.txt"}));
    EXPECT_EQ(files.read(u"box\\하.txt"), "apart");
    EXPECT_EQ(files.list_folders(u"box"), std::vector<Text>{u"나"});
    const std::time_t written = 1'700'000'000;
    EXPECT_EQ(break_up(files.list_files(u"box", u"a.txt")[0].modified).minute,
              std::localtime(&written)->tm_min);

    put(application / "box/하.txt", "whole");
    EXPECT_EQ(names(u"*.txt").size(), 4U);
    EXPECT_EQ(files.read(u"box\\" + files.list_files(u"box", u"*.txt")[1].name), "apart")
        << "two spellings of one name stay two files";
}

TEST_F(PosixFilesTest, AHiddenFileKeepsAFolderButTheRemainsOfAKilledWriteDoNot) {
    fs::create_directories(application / "box/sub");
    put(application / "box/.b", "b");
    fs::create_symlink(application / "elsewhere", application / "box/link.txt");
    put(application / "box/.zent-new-abc", "remains of a killed write");
    EXPECT_EQ(error_number([&] { files.remove_empty_folder(u"box"); }), 75);
    EXPECT_EQ(names_in(application / "box"), (std::set<std::string>{"sub", ".b", "link.txt"}));
    files.remove_files(u"box", u"*.txt");
    EXPECT_EQ(names_in(application / "box"), (std::set<std::string>{"sub", ".b"}));
    files.remove_files(u"box", u"*.*");
    fs::remove(application / "box/sub");
    files.remove_empty_folder(u"box");
    EXPECT_EQ(names_in(application), NOTHING);
}

TEST_F(PosixFilesTest, ExistingOddNamesOpenButNewOnesAreRefused) {
    put(application / "a:b?.txt", "old");
    files.write(u".\\a:b?.txt", "new");
    EXPECT_EQ(files.read(u".\\a:b?.txt"), "new");
    EXPECT_EQ(error_number([&] { files.write(u"c:\\a*b", "x"); }), 52);
    files.remove(u".\\a:b?.txt");
    EXPECT_EQ(names_in(application), NOTHING);
}

TEST_F(PosixFilesTest, AFileOfMoreThanTwoGigabytesIsMeasured) {
    put(application / "scan.tif", "");
    fs::resize_file(application / "scan.tif", 3'000'000'000);
    EXPECT_EQ(files.length(u"scan.tif"), 3'000'000'000u);
}

TEST_F(PosixFilesTest, EndlessFilesAreNotRead) {
    ::mkfifo((application / "pipe").c_str(), 0600);
    for (const char16_t* path : {u"pipe", u"z:\\dev\\zero"})
        EXPECT_EQ(error_number([&] { files.read(path); }), 75) << to_utf8(path);
}

TEST_F(PosixFilesTest, AFileOfAnAbsurdSizeIsNotRead) {
    put(application / "note.txt", "");
    fs::resize_file(application / "note.txt", std::uintmax_t{1} << 40);
    EXPECT_EQ(error_number([&] { files.read(u"note.txt"); }), 7);
}

TEST_F(PosixFilesTest, AUsersLimitForFilesIsAFullDisk) {
    files.write(u"zent.ini", "old");
    tests::ChildProcess child([&] {
        tests::limit_file_size(5000, true);
        take_file_size_limit_as_full_disk();
        return error_number([&] { files.write(u"zent.ini", std::string(100000, 'n')); });
    });
    EXPECT_EQ(child.wait(), 61);
}

TEST_F(PosixFilesTest, WithoutPermissionNothingChanges) {
    put(application / "secret", "old");
    fs::permissions(application / "secret", fs::perms::none);
    fs::permissions(application, fs::perms(0555));
    fs::permissions(folder.path(), fs::perms(0755));
    tests::ChildProcess child([&] {
        constexpr uid_t NOBODY = 65534;
        if (::getuid() == 0 && ::setuid(NOBODY) != 0) return 1;
        if (error_number([&] { files.read(u"secret"); }) != 70) return 2;
        if (error_number([&] { files.write(u"secret", "new"); }) != 70) return 3;
        if (error_number([&] { files.remove(u"secret"); }) != 70) return 4;
        if (error_number([&] { files.make_folder(u"box"); }) != 75) return 5;
        return 0;
    });
    EXPECT_EQ(child.wait(), 0);
    fs::permissions(application, fs::perms(0755));
    EXPECT_EQ(names_in(application), std::set<std::string>{"secret"});
}

TEST_F(PosixFilesTest, AFullDiskLeavesTheOldFile) {
    files.write(u"zent.ini", "old");
    tests::ChildProcess child([&] {
        tests::limit_file_size(5000, false);
        return error_number([&] { files.write(u"zent.ini", std::string(100000, 'n')); });
    });
    EXPECT_EQ(child.wait(), 61);
    EXPECT_EQ(bytes_of(application / "zent.ini"), "old");
    EXPECT_EQ(names_in(application), std::set<std::string>{"zent.ini"});
}

TEST_F(PosixFilesTest, PiecesAreInTheFileAfterAFlushOrWhenTheyAreMany) {
    put(application / "old", "an old file");
    const auto file = files.open_for_writing(u"OLD");
    file->write("th");
    file->write("e");
    EXPECT_EQ(bytes_of(application / "old"), "an old file");
    file->flush();
    file->write(std::string(100'000, 'x'));
    EXPECT_EQ(fs::file_size(application / "old"), 100'003u) << "much is not kept waiting";

    files.open_for_writing(u"new");
    EXPECT_EQ(mode_of(application / "new"), 0600u);
}

TEST_F(PosixFilesTest, OnlyNormalFilesAreWrittenInPieces) {
    fs::create_symlink(application / "target", application / "link");
    fs::create_directory(application / "folder");
    ::mkfifo((application / "pipe").c_str(), 0600);
    for (const char16_t* name : {u"link", u"folder", u"pipe", u"folder\\missing\\file"})
        EXPECT_NE(error_number([&] { files.open_for_writing(name); }), 0) << to_utf8(name);
    EXPECT_FALSE(fs::exists(application / "target"));
}

TEST_F(PosixFilesTest, AKilledWriteLeavesTheOldFileAndTheNextOneRemovesItsRemains) {
    files.write(u"zent.ini", "old");
    for (const rlim_t bytes : {0, 1, 99999}) {
        tests::ChildProcess child([&] {
            tests::limit_file_size(bytes, true);
            files.write(u"zent.ini", std::string(100000, 'n'));
            return 0;
        });
        EXPECT_EQ(child.wait(), -SIGXFSZ);
        EXPECT_EQ(bytes_of(application / "zent.ini"), "old") << bytes;
    }
    files.write(u"zent.ini", "new");
    EXPECT_EQ(names_in(application), std::set<std::string>{"zent.ini"}) << "a password may be in the remains";
}

TEST_F(PosixFilesTest, AWholeFileThatAKilledWriteLeftIsBroughtInByTheNextLook) {
    const fs::path box = application / "box";
    const auto leave = [&](const std::string& name, const char* bytes) {
        put(box / (".zent-whole-" + name), bytes);
    };
    const auto written_at = [&](const std::string& name, std::time_t seconds) {
        const timespec times[2] = {{seconds, 0}, {seconds, 0}};
        ::utimensat(AT_FDCWD, (box / name).c_str(), times, 0);
    };
    fs::create_directory(box);
    leave("첫글.txt", "first save");
    leave("고친글.txt", "edited");
    leave("다시 고친글.txt", "edited");
    put(box / "고친글.txt", "old");
    written_at("고친글.txt", 1'700'000'000);
    put(box / "다시 고친글.txt", "edited elsewhere since");
    written_at(".zent-whole-다시 고친글.txt", 1'700'000'000);
    put(box / ".zent-new-1-0", "half a te");

    std::vector<std::string> texts;
    for (const FileEntry& file : files.list_files(u"box", u"*.txt"))
        texts.push_back(to_utf8(file.name) + ": " + files.read(u"box\\" + file.name));
    EXPECT_EQ(texts,
              (std::vector<std::string>{"고친글.txt: edited", "다시 고친글.txt: edited elsewhere since",
                                        "첫글.txt: first save"}));
    EXPECT_EQ(names_in(box).size(), 3u) << "nothing remains";

    leave("a.txt", "asked for");
    EXPECT_TRUE(files.file_exists(u"box\\a.txt"));
    leave("b.txt", "read");
    EXPECT_EQ(files.read(u"box\\b.txt"), "read");
    leave("b.txt", "deleted");
    files.remove(u"box\\b.txt");
    EXPECT_FALSE(files.file_exists(u"box\\b.txt"));

    fs::create_directory(application / "category");
    put(application / "category/.zent-whole-c.txt", "the only text");
    EXPECT_EQ(error_number([&] { files.remove_empty_folder(u"category"); }), 75);
    EXPECT_EQ(bytes_of(application / "category/c.txt"), "the only text");
}

TEST_F(PosixFilesTest, ANameThatLeavesNoRoomForAnotherIsWrittenToo) {
    const Text name = Text(83, u'가') + u".txt";
    files.write(name, "old");
    files.write(name, "new");
    EXPECT_EQ(files.read(name), "new");
    EXPECT_EQ(names_in(application).size(), 1u);
}

TEST_F(PosixFilesTest, AKillAtAnyMomentLeavesTheOldFileOrTheNewOne) {
    const std::string old_file(4'000'000, 'o');
    const std::string new_file(4'000'000, 'n');
    files.write(u"zent.ini", old_file);
    for (int kills = 0; kills < 12; ++kills) {
        tests::Pipe begun;
        tests::ChildProcess writer([&] {
            for (;;) {
                begun.signal();
                files.write(u"zent.ini", new_file);
                begun.signal();
                files.write(u"zent.ini", old_file);
            }
            return 0;
        });
        for (int writes = 0; writes <= kills % 4; ++writes) ASSERT_TRUE(begun.wait());
        writer.kill();
        for (const bool looked : {false, true}) {
            if (looked) files.list_files(u"", u"*.*");
            const std::string found = files.read(u"zent.ini");
            ASSERT_TRUE(found == old_file || found == new_file)
                << found.size() << " bytes after kill " << kills;
        }
        EXPECT_EQ(names_in(application), std::set<std::string>{"zent.ini"});
    }
}

TEST_F(PosixFilesTest, FilesTheUserNamesKeepTheUsersPermissionsAndTheProgramsOwnArePrivate) {
    ::umask(027);
    const struct {
        fs::path path;
        mode_t mode;
    } rows[] = {
        {folder.path() / "new.wav", 0640}, {folder.path() / "old.wav", 0664},
        {application / "zent.ini", 0600},  {application / "drive_c/tmp.wav", 0600},
        {windows / "zent.ini", 0600},
    };
    for (const fs::path& old : {rows[1].path, rows[2].path}) {
        put(old, "old");
        fs::permissions(old, fs::perms(0775));
    }
    for (const auto& row : rows) {
        files.write(Paths::from_posix(row.path), "new");
        EXPECT_EQ(bytes_of(row.path), "new");
        EXPECT_EQ(mode_of(row.path), row.mode) << row.path;
    }
    ::umask(022);
}

}  // namespace
