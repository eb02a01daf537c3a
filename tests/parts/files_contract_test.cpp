// What every `Files` does. The same rows run with the real one and with the double that the tests of the
// logic use.

#include "tests/support/files_on_disk.h"
#include "tests/support/memory_files.h"
#include "tests/support/utf8.h"

#include <functional>
#include <gtest/gtest.h>
#include <memory>

namespace {

using namespace platform;
using tests::error_number;
using tests::utf8;
using Strings = std::vector<std::string>;

/// One implementation of `Files`, with a way to make a link.
struct Place {
    virtual ~Place() = default;
    virtual Files& files() = 0;
    virtual void link_folder(const Text& path) = 0;
};

struct PlaceOnDisk : Place, tests::FilesOnDisk {
    Files& files() override { return FilesOnDisk::files; }
    void link_folder(const Text& path) override {
        std::filesystem::create_directory(folder.path() / "elsewhere");
        std::filesystem::create_directory_symlink(folder.path() / "elsewhere", files().machine_path(path));
    }
};

struct PlaceInMemory : Place {
    Files& files() override { return memory; }
    void link_folder(const Text& path) override {
        memory.folders.insert(path);
        memory.links.insert(path);
    }
    tests::MemoryFiles memory;
};

struct Kind {
    const char* name;
    std::unique_ptr<Place> (*make)();
};
void PrintTo(const Kind& kind, std::ostream* out) { *out << kind.name; }

class FilesContract : public testing::TestWithParam<Kind> {
  protected:
    /// A path in the application directory.
    Text in(const Text& path) const { return files.application_directory() + u"\\" + path; }
    Strings files_in(const Text& folder, TextView pattern = u"*.*") const {
        Strings names;
        for (const FileEntry& file : files.list_files(in(folder), pattern)) names.push_back(utf8(file.name));
        return names;
    }
    Strings folders_in(const Text& folder) const {
        Strings names;
        for (const Text& name : files.list_folders(in(folder))) names.push_back(utf8(name));
        return names;
    }

    std::unique_ptr<Place> place = GetParam().make();
    Files& files = place->files();
};

TEST_P(FilesContract, NamesMatchInAnyCaseAndKeepTheirFirstSpelling) {
    files.make_folder(in(u"Box"));
    files.write(in(u"box\\알림A.TXT"), "first");
    EXPECT_EQ(files.read(in(u"BOX\\\\알림a.txt")), "first");
    files.write(in(u"BOX\\알림a.txt"), "second");
    EXPECT_EQ(files.length(in(u"Box\\알림A.txt")), 6u);
    EXPECT_EQ(files_in(u"box\\"), Strings{"알림A.TXT"}) << "not a second file beside the first";
    EXPECT_TRUE(files.folder_exists(in(u"bOX\\")));
    EXPECT_FALSE(files.folder_exists(in(u"box\\알림A.TXT")));
    EXPECT_TRUE(files.folder_exists(files.application_directory()));
}

TEST_P(FilesContract, AFileExistsByItsNameOrAPattern) {
    files.make_folder(in(u"box"));
    files.make_folder(in(u"box\\folder.txt"));
    files.write(in(u"box\\Letter1.txt"), "");
    files.write(in(u"box\\가나.dat"), "");
    const struct {
        const char16_t* path;
        bool exists;
    } rows[] = {
        {u"box", false},
        {u"box\\", false},
        {u"box\\letter1.txt", true},
        {u"box\\letter2.txt", false},
        {u"box\\folder.txt", false},
        {u"box\\*.TXT", true},
        {u"box\\f*.txt", false},
        {u"box\\??.dat", true},
        {u"box\\?.dat", false},
        {u"box\\l*t*1*", true},
        {u"box\\letter1.txt*", true},
        {u"box\\letter1.txt?", false},
        {u"box\\*.*", true},
        {u"no\\*.*", false},
    };
    for (const auto& row : rows) EXPECT_EQ(files.file_exists(in(row.path)), row.exists) << utf8(row.path);
    EXPECT_FALSE(files.file_exists(u""));
    EXPECT_FALSE(files.file_exists(u"d:\\a.txt"));
}

TEST_P(FilesContract, AFolderIsListedInOrderAndWithoutLinks) {
    files.make_folder(in(u"box"));
    for (const char16_t* name : {u"b.TXT", u"A.txt", u"가.txt", u"d.txtx"})
        files.write(in(u"box\\") + name, "");
    for (const char16_t* name : {u"나", u"C.txt", u"c.txt\\inner"}) files.make_folder(in(u"box\\") + name);
    place->link_folder(in(u"box\\다"));
    EXPECT_EQ(files_in(u"box", u"*.txt"), (Strings{"A.txt", "b.TXT", "가.txt"}));
    EXPECT_EQ(files_in(u"box"), (Strings{"A.txt", "b.TXT", "d.txtx", "가.txt"}));
    EXPECT_EQ(folders_in(u"box"), (Strings{"C.txt", "나"}));
    EXPECT_TRUE(files.is_link(in(u"box\\다\\")));
    EXPECT_FALSE(files.is_link(in(u"box\\나")));
}

TEST_P(FilesContract, AFileThatIsWrittenInPiecesKeepsItsTail) {
    files.write(in(u"old"), "an old file");
    const auto file = files.open_for_writing(in(u"OLD"));
    file->write("th");
    file->write("e");
    file->flush();
    EXPECT_EQ(files.read(in(u"old")), "theold file");
    file->write(" whole file");
    file->flush();
    EXPECT_EQ(files.read(in(u"old")), "the whole file");
    files.open_for_writing(in(u"new"));
    EXPECT_EQ(files.read(in(u"new")), "");
}

TEST_P(FilesContract, AFileIsRenamedOverAnother) {
    files.make_folder(in(u"box"));
    files.write(in(u"box\\a.txt"), "a");
    files.write(in(u"box\\b.txt"), "b");
    files.rename(in(u"box\\A.txt"), in(u"box\\b.txt"));
    files.rename(in(u"box\\b.txt"), in(u"box\\다.txt"));
    EXPECT_EQ(files_in(u"box"), Strings{"다.txt"});
    EXPECT_EQ(files.read(in(u"box\\다.txt")), "a");
}

TEST_P(FilesContract, FoldersAreRenamedAndRemovedWithAllThatIsInThem) {
    files.make_folder(in(u"box"));
    files.make_folder(in(u"box\\sub"));
    files.write(in(u"box\\sub\\a.txt"), "a");
    files.write(in(u"boxer.txt"), "beside");
    files.rename_folder(in(u"Box"), in(u"상자"));
    EXPECT_EQ(files.read(in(u"상자\\sub\\a.txt")), "a");
    EXPECT_FALSE(files.folder_exists(in(u"box")));

    files.write(in(u"상자\\b.txt"), "");
    files.write(in(u"상자\\c.dat"), "");
    files.remove_files(in(u"상자"), u"*.txt");
    EXPECT_EQ(files_in(u"상자"), Strings{"c.dat"});
    files.remove_folder(in(u"상자"));
    EXPECT_FALSE(files.folder_exists(in(u"상자")));
    EXPECT_EQ(files_in(u""), Strings{"boxer.txt"});
}

TEST_P(FilesContract, FailuresHaveTheirClassicNumbers) {
    files.make_folder(in(u"box"));
    files.make_folder(in(u"full"));
    files.make_folder(in(u"full\\sub"));
    files.write(in(u"file"), "");
    files.write(in(u"five"), "12345");
    const Text long_name(300, u'a');
    const struct {
        const char* what;
        int number;
        std::function<void()> step;
    } rows[] = {
        {"read a missing file", 53, [&] { files.read(in(u"box\\none")); }},
        {"read below a missing folder", 76, [&] { files.read(in(u"none\\none")); }},
        {"read below a file", 75, [&] { files.read(in(u"file\\none")); }},
        {"read a folder", 75, [&] { files.read(in(u"box")); }},
        {"read a file up to its limit", 0, [&] { files.read(in(u"five"), 5); }},
        {"read a file beyond its limit", 7, [&] { files.read(in(u"five"), 4); }},
        {"ask for a missing file's length", 53, [&] { files.length(in(u"none")); }},
        {"write over a folder", 75, [&] { files.write(in(u"box"), "x"); }},
        {"write below a file", 75, [&] { files.write(in(u"file\\x"), "x"); }},
        {"write below a missing folder", 76, [&] { files.write(in(u"none\\x"), "x"); }},
        {"write a name that is too long", 52, [&] { files.write(in(long_name), "x"); }},
        {"write a name that some system refuses", 52, [&] { files.write(in(u"a*b"), "x"); }},
        {"open a folder", 75, [&] { files.open_for_writing(in(u"box")); }},
        {"open below a missing folder", 76, [&] { files.open_for_writing(in(u"none\\x")); }},
        {"remove a missing file", 53, [&] { files.remove(in(u"none")); }},
        {"remove below a missing folder", 76, [&] { files.remove(in(u"none\\none")); }},
        {"remove a folder as a file", 75, [&] { files.remove(in(u"box")); }},
        {"rename a missing file", 53, [&] { files.rename(in(u"none"), in(u"some")); }},
        {"rename a file over a folder", 75, [&] { files.rename(in(u"file"), in(u"box")); }},
        {"rename a folder as a file", 75, [&] { files.rename(in(u"box"), in(u"some")); }},
        {"give a file a name that some system refuses", 52, [&] { files.rename(in(u"file"), in(u"a*b")); }},
        {"make a folder that is there", 0, [&] { files.make_folder(in(u"box")); }},
        {"make a folder over a file", 75, [&] { files.make_folder(in(u"file")); }},
        {"make a folder below none", 76, [&] { files.make_folder(in(u"none\\none")); }},
        {"make a folder whose name is a device's", 52, [&] { files.make_folder(in(u"aux\\")); }},
        {"remove a missing folder", 76, [&] { files.remove_folder(in(u"none")); }},
        {"remove a file as a folder", 75, [&] { files.remove_folder(in(u"file")); }},
        {"list a missing folder", 76, [&] { files.list_files(in(u"none"), u"*.*"); }},
        {"list the folders of a file", 75, [&] { files.list_folders(in(u"file")); }},
        {"remove the files of a missing folder", 76, [&] { files.remove_files(in(u"none"), u"*.*"); }},
        {"rename a missing folder", 76, [&] { files.rename_folder(in(u"none"), in(u"some")); }},
        {"rename a folder over a file", 75, [&] { files.rename_folder(in(u"box"), in(u"file")); }},
        {"rename a folder over a full one", 75, [&] { files.rename_folder(in(u"box"), in(u"full")); }},
        {"give a folder a name that ends in a dot", 52, [&] { files.rename_folder(in(u"box"), in(u"b.")); }},
        {"remove a missing folder that is to be empty", 76, [&] { files.remove_empty_folder(in(u"none")); }},
        {"remove a full folder that is to be empty", 75, [&] { files.remove_empty_folder(in(u"full")); }},
        {"remove an empty folder", 0, [&] { files.remove_empty_folder(in(u"full\\sub")); }},
    };
    for (const auto& row : rows) EXPECT_EQ(error_number(row.step), row.number) << row.what;
    EXPECT_EQ(files_in(u""), (Strings{"file", "five"}));
    EXPECT_EQ(folders_in(u""), (Strings{"box", "full"}));
}

INSTANTIATE_TEST_SUITE_P(
    , FilesContract,
    testing::Values(Kind{"PosixFiles", [] { return std::unique_ptr<Place>(new PlaceOnDisk); }},
                    Kind{"MemoryFiles", [] { return std::unique_ptr<Place>(new PlaceInMemory); }}),
    [](const auto& info) { return info.param.name; });

}  // namespace
