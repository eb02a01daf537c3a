#include "platform/formats/ini_settings.h"

#include "tests/support/child_process.h"
#include "tests/support/files_on_disk.h"

#include <functional>
#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace {

using namespace platform;
using tests::bytes_of;
using tests::error_number;
using tests::names_in;
using tests::put;
namespace fs = std::filesystem;

constexpr std::size_t LIMIT = 254;

/// Settings over the real file system.
class IniSettingsTest : public testing::Test, protected tests::FilesOnDisk {
  protected:
    IniSettings settings{files};
    const Text zent_ini = files.application_directory() + u"\\zent.ini";
    const fs::path on_disk = application / "zent.ini";
};

std::string rubbish(std::size_t size) {
    std::mt19937 random(1);
    std::string bytes(size, '\0');
    for (char& byte : bytes) byte = static_cast<char>(random());
    return bytes;
}

TEST_F(IniSettingsTest, AValueIsReadBackCutAtAWholeCharacter) {
    EXPECT_EQ(settings.read(zent_ini, "SET", "P_TIME", LIMIT), "") << "no file yet";
    std::string name = "x";
    for (int i = 0; i < 200; ++i) name += "\xC7\xD1";
    settings.write(zent_ini, "SET", "ZENTUserNickName", name);
    EXPECT_EQ(settings.read(zent_ini, "set", "ZentUserNickName", LIMIT), name.substr(0, 253));
    EXPECT_EQ(settings.read(zent_ini, "SET", "ZentUserNickName", 1), "x");
    EXPECT_EQ(bytes_of(on_disk), "[SET]\r\nZENTUserNickName=" + name + "\r\n");
}

TEST_F(IniSettingsTest, TheFirstWriteMakesTheWindowsDirectory) {
    const Text path = files.windows_directory() + u"\\zent.ini";
    settings.write(path, "LOGIN", "LOGINID", "demo");
    EXPECT_EQ(settings.read(path, "LOGIN", "LOGINID", LIMIT), "demo");
    EXPECT_EQ(names_in(windows), std::set<std::string>{"zent.ini"});
}

TEST_F(IniSettingsTest, AWriteLosesNothingElseInTheFile) {
    const std::string section = "[SET]\r\nP_TIME=30\r\n";
    std::string large;
    while (large.size() < 1'000'000) large += "[S" + std::to_string(large.size()) + "]\r\nkey=value\r\n";
    const std::vector<std::pair<const char*, std::string>> cases = {
        {"1 MB", large},
        {"binary rubbish", rubbish(1'000'000) + "\r\n"},
        {"an endless line", std::string(1'000'000, '[') + "\r\n"},
        {"NULs", std::string(1000, '\0') + "\r\n"},
    };
    for (const auto& [what, before] : cases) {
        put(on_disk, before + section);
        EXPECT_EQ(settings.read(zent_ini, "SET", "P_TIME", LIMIT), "30") << what;
        settings.write(zent_ini, "SET", "P_TIME", "60");
        EXPECT_TRUE(bytes_of(on_disk) == before + "[SET]\r\nP_TIME=60\r\n") << what;
    }
}

TEST_F(IniSettingsTest, AFileThatCannotBeReadIsNotWritten) {
    fs::create_directory(on_disk);
    put(application / "file", "");
    EXPECT_EQ(settings.read(zent_ini, "SET", "P_TIME", LIMIT), "");
    EXPECT_EQ(error_number([&] { settings.write(zent_ini, "SET", "P_TIME", "60"); }), 75)
        << "a folder is there";
    EXPECT_EQ(error_number([&] { settings.write(u"file\\zent.ini", "SET", "P_TIME", "60"); }), 75);
    EXPECT_EQ(error_number([&] { settings.write(u"none\\zent.ini", "SET", "P_TIME", "60"); }), 76);
    EXPECT_EQ(names_in(application), (std::set<std::string>{"zent.ini", "file"}));

    fs::remove(on_disk);
    put(on_disk, "[LOGIN]\r\nAUTOLOGIN=1\r\n");
    fs::permissions(on_disk, fs::perms(0200));
    fs::permissions(application, fs::perms(0777));
    fs::permissions(folder.path(), fs::perms(0755));
    tests::ChildProcess stranger([&] {
        if (::getuid() == 0 && ::setuid(65534) != 0) return 1;
        return error_number([&] { settings.write(zent_ini, "SET", "P_TIME", "60"); });
    });
    EXPECT_EQ(stranger.wait(), 70) << "it may replace the file, but not read what it would lose";
    fs::permissions(on_disk, fs::perms(0600));
    EXPECT_EQ(bytes_of(on_disk), "[LOGIN]\r\nAUTOLOGIN=1\r\n");
}

TEST_F(IniSettingsTest, AFileOfAnAbsurdSizeCountsAsUnreadable) {
    put(on_disk, "[SET]\r\nP_TIME=60\r\n");
    constexpr std::uintmax_t ABSURD = std::uintmax_t{1} << 40;
    fs::resize_file(on_disk, ABSURD);
    EXPECT_EQ(settings.read(zent_ini, "SET", "P_TIME", LIMIT), "");
    EXPECT_EQ(error_number([&] { settings.write(zent_ini, "SET", "P_TIME", "30"); }), 7);
    EXPECT_EQ(fs::file_size(on_disk), ABSURD);
}

TEST_F(IniSettingsTest, AValueIsBlankedWhereItStandsWhenTheFileCannotBeReplaced) {
    const std::string before = "[LOGIN]\r\nLOGINID=demo\r\nLOGINPW=demo1234\r\nX=1\r\n";
    put(on_disk, before);
    fs::permissions(on_disk, fs::perms(0666));
    fs::permissions(application, fs::perms(0555));
    fs::permissions(folder.path(), fs::perms(0755));
    tests::ChildProcess stranger([&] {
        if (::getuid() == 0 && ::setuid(65534) != 0) return 1;
        if (error_number([&] { settings.write(zent_ini, "LOGIN", "LOGINPW", ""); }) != 0) return 2;
        return error_number([&] { settings.write(zent_ini, "LOGIN", "LOGINID", "x"); });
    });
    EXPECT_EQ(stranger.wait(), 70) << "any other value is written whole or not at all";
    fs::permissions(application, fs::perms(0755));
    EXPECT_EQ(bytes_of(on_disk), "[LOGIN]\r\nLOGINID=demo\r\nLOGINPW=        \r\nX=1\r\n");
}

TEST_F(IniSettingsTest, AnUnchangedValueIsNotWrittenAgain) {
    settings.write(zent_ini, "SET", "P_TIME", "60");
    fs::last_write_time(on_disk, fs::file_time_type());
    settings.write(zent_ini, "set", "p_time", "60");
    EXPECT_EQ(fs::last_write_time(on_disk), fs::file_time_type());
}

}  // namespace
