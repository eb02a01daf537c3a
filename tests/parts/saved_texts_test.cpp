// The box of saved texts in real folders, in the state in which other systems, other programs and mishaps
// leave them.

#include "core/saved_texts_folder.h"
#include "platform/text/hangul.h"
#include "saved_texts/frmMyMsgBox.h"
#include "tests/support/child_process.h"
#include "tests/support/files_on_disk.h"
#include "tests/support/lists.h"
#include "tests/support/test_platform.h"
#include "tests/support/utf8.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>

namespace {

namespace fs = std::filesystem;
using platform::Text;
using tests::bytes_of;
using tests::choose;
using tests::column;
using tests::names_in;
using tests::put;
using tests::utf8;
using Strings = std::vector<std::string>;

class SavedTextsOnDisk : public testing::Test, protected tests::FilesOnDisk {
  protected:
    SavedTextsOnDisk() { core::make_saved_texts_folders(platform); }

    tests::TestPlatform machine;
    tests::ScriptedDesktop& desktop = machine.desktop;
    platform::Platform platform = tests::with(machine.platform, {.files = &files});
    saved_texts::frmMyMsgBox box{platform, [](const platform::Text&, const platform::Text&) {}};
    const fs::path root = application / "내모음함";
    const fs::path first = root / "내모음함";
};

TEST_F(SavedTextsOnDisk, NamesInConjoiningLettersAreListedOpenedAndFoundByTyping) {
    const std::string apart = platform::to_utf8(platform::decompose_hangul(u"각서"));
    fs::create_directory(root / apart);
    put(root / apart / (apart + ".txt"), "\xB0\xA1");
    box.load();
    EXPECT_EQ(column(box.ListView1), (Strings{"내모음함", "각서"}));
    choose(box.ListView1, 1);
    choose(box.ListView2, 0);
    EXPECT_EQ(utf8(box.Text1.text() + box.txtText.text()), "각서가");

    desktop.expect_box(tests::refusal(u"'각서' 제목은 이미 존재하고 있습니다."));
    box.Command1.Click.raise();
    desktop.expect_box(tests::notice(u"수정 되었습니다."));
    box.txtText.set_text(u"나");
    box.Command2.Click.raise();
    EXPECT_EQ(names_in(root / apart), std::set<std::string>{apart + ".txt"}) << "it is still the same file";
    EXPECT_EQ(bytes_of(root / apart / (apart + ".txt")), "\xB3\xAA");
}

TEST_F(SavedTextsOnDisk, ARowIsItsOwnFileWhateverElseHasNearlyItsName) {
    // Names in code page 949 come from the disks of old systems.
    const Strings names = {"m.TXT", "m.txt", "bad\xFE.txt", "bad\xFF.txt", "\xB0\xA1.txt"};
    using Contents = std::map<std::string, std::string>;
    const auto contents = [&] {
        Contents found;
        for (const std::string& name : names_in(first)) found[name] = bytes_of(first / name);
        return found;
    };
    box.load();
    for (std::size_t i = 0; i < names.size(); ++i) {
        SCOPED_TRACE(names[i]);
        const auto lay_out_and_choose = [&] {
            fs::remove(first / "새.txt");
            for (std::size_t file = 0; file < names.size(); ++file)
                put(first / names[file], std::to_string(file));
            box.Command10.Click.raise();
            const Strings bodies = column(box.ListView2, saved_texts::TEXT_BODY);
            const auto row = std::ranges::find(bodies, std::to_string(i)) - bodies.begin();
            if (static_cast<std::size_t>(row) < bodies.size())
                choose(box.ListView2, static_cast<std::size_t>(row));
            return contents();
        };
        Contents expected = lay_out_and_choose();
        Strings titles = column(box.ListView2);
        std::ranges::sort(titles);
        EXPECT_EQ(titles, (Strings{"bad\uFFFD", "bad\uFFFD", "m", "m", "\uFFFD\uFFFD"}));
        expected[names[i]] = "new";
        box.txtText.set_text(u"new");
        desktop.expect_box(tests::notice(u"수정 되었습니다."));
        box.Command2.Click.raise();
        EXPECT_EQ(contents(), expected);

        expected = lay_out_and_choose();
        expected.erase(names[i]);
        desktop.expect_box(tests::delete_text_question(box.Text1.text()), platform::BoxAnswer::yes);
        box.Command3.Click.raise();
        EXPECT_EQ(contents(), expected);

        lay_out_and_choose();
        expected["새.txt"] = "new";
        box.Text1.set_text(u"새");
        box.txtText.set_text(u"new");
        desktop.expect_box(tests::notice(u"수정 되었습니다."));
        box.Command2.Click.raise();
        EXPECT_EQ(contents(), expected);
    }
}

TEST_F(SavedTextsOnDisk, NoPathLeavesTheBox) {
    fs::create_directory(folder.path() / "outside");
    put(folder.path() / "outside/남.txt", "theirs");
    put(application / "..txt", "x");
    fs::create_directory_symlink(folder.path() / "outside", root / "밖");
    fs::create_symlink(folder.path() / "outside/남.txt", first / "링크.txt");
    put(first / "..\\..\\위.txt", "x");
    box.load();
    EXPECT_EQ(column(box.ListView1), Strings{"내모음함"});
    EXPECT_EQ(column(box.ListView2), Strings{});
    for (const char16_t* name : {u"밖", u"..", u"."}) {
        desktop.expect_input(tests::NEW_CATEGORY, name);
        desktop.expect_box(
            tests::refusal(u"'" + platform::Text(name) + u"' 분류명은 이미 존재하고 있습니다."));
        desktop.expect_input(tests::NEW_CATEGORY, u"");
        box.Command8.Click.raise();
    }

    fs::remove_all(first);
    fs::create_directory_symlink(folder.path() / "outside", first);
    desktop.expect_box(tests::category_is_outside(u"내모음함"));
    box.Command10.Click.raise();
    box.Text1.set_text(u"남");
    box.txtText.set_text(u"글");
    desktop.expect_box(tests::refusal(u"'남' 제목은 이미 존재하고 있습니다."));
    box.Command1.Click.raise();
    box.Text1.set_text(u"새");
    desktop.expect_box(tests::category_is_outside(u"내모음함"));
    box.Command1.Click.raise();
    EXPECT_EQ(names_in(folder.path() / "outside"), std::set<std::string>{"남.txt"});
    EXPECT_EQ(bytes_of(folder.path() / "outside/남.txt"), "theirs");
}

TEST_F(SavedTextsOnDisk, ATextOfAnAbsurdSizeIsReportedAndHidesNoOther) {
    put(first / "가.txt", "1");
    fs::resize_file(first / "가.txt", std::uintmax_t{1} << 40);
    put(first / "나.txt", "2");
    desktop.expect_box(tests::failure(7, u"'가.txt': 메모리가 부족합니다."));
    box.load();
    EXPECT_EQ(column(box.ListView2), Strings{"나"});
}

TEST_F(SavedTextsOnDisk, ATextWithoutPermissionIsReportedAndHidesNoOther) {
    put(first / "가.txt", "1");
    put(first / "나.txt", "2");
    fs::create_directory(root / "잠김");
    fs::permissions(first / "가.txt", fs::perms::none);
    fs::permissions(root / "잠김", fs::perms::none);
    for (const fs::path& path : {folder.path(), application, root, first})
        fs::permissions(path, fs::perms(0755));
    fs::permissions(first / "나.txt", fs::perms(0644));
    tests::ChildProcess child([&] {
        constexpr uid_t NOBODY = 65534;
        if (::getuid() == 0 && ::setuid(NOBODY) != 0) return 1;
        desktop.expect_box(tests::failure(70, u"'가.txt': 사용 권한이 없습니다."));
        box.load();
        if (column(box.ListView2) != Strings{"나"}) return 2;
        desktop.expect_box(tests::failure(75, u"경로/파일 액세스 오류입니다."));
        choose(box.ListView1, 1);
        return testing::Test::HasFailure() ? 3 : 0;
    });
    EXPECT_EQ(child.wait(), 0);
    fs::permissions(root / "잠김", fs::perms(0700));
}

}  // namespace
