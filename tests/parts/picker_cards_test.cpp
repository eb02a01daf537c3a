// The picker over real card databases: it must show what an independent reader recorded of them.

#include "addressbook/frmSendMan.h"
#include "machine/posix/posix_files.h"
#include "platform/text/format.h"
#include "tests/parts/card_fixtures.h"
#include "tests/support/main_window.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <set>

namespace {

using addressbook::frmSendMan;
using platform::Text;
using tests::CardTable;
using tests::utf8;
using Rows = std::vector<std::string>;

struct PickerCards : testing::Test, tests::TestPlatform {
    tests::CardsOnDisk disk;
    const std::string folder = disk.folder.path().string();
    machine::posix::PosixFiles files_on_disk{machine::posix::Paths(folder)};
    platform::Platform machine = tests::with(platform, {.files = &files_on_disk, .cards = &disk.source});
    compose::frmZent form{machine, state, {}};

    void pick(const std::string& database, const std::function<void(frmSendMan&)>& act) {
        disk.put(database);
        desktop.in_form<frmSendMan>(u"frmSendMan", [&](frmSendMan& picker) {
            act(picker);
            picker.unload();
        });
        frmSendMan(machine, state, form.recipients, form.Timer1).ShowEnter(u"문자메시지");
    }

    static Rows names(const frmSendMan& picker) {
        Rows names;
        for (std::size_t row = 0; row < picker.ListView2.row_count(); ++row)
            names.push_back(utf8(picker.ListView2.row(row).text()));
        return names;
    }
};

/// What a database holds according to its fixture.
struct Written {
    explicit Written(const std::string& database)
        : folders(database + ".tbl_folder"), cards(database + ".tbl_namecard") {
        std::map<int, int> parents;
        for (const auto& row : folders.rows)
            parents[folders.number(row, u"f_idx")] = folders.number(row, u"p_idx");
        for (const auto& [folder, parent] : parents) {
            int above = folder;
            while (above != 1 && above != 1000 && parents.contains(above)) above = parents.at(above);
            if (above == 1 && folder != 1) shown.insert(folder);
        }
        std::stable_sort(cards.rows.begin(), cards.rows.end(), [this](const auto& a, const auto& b) {
            return cards.number(a, u"i_idx") < cards.number(b, u"i_idx");
        });
    }

    int count(int folder) const {
        return static_cast<int>(std::count_if(cards.rows.begin(), cards.rows.end(), [&](const auto& row) {
            return cards.number(row, u"f_idx") == folder;
        }));
    }
    /// The names of the cards that can be listed and that meet the condition.
    Rows names(const std::function<bool(const CardTable::Row&)>& condition) const {
        Rows names;
        for (const auto& row : cards.rows) {
            if (cards.number(row, u"p_idx") == 0 && condition(row))
                names.push_back(utf8(cards.at(row, u"FullName").value_or(u"")));
        }
        return names;
    }

    CardTable folders, cards;
    /// The folders below the top, without the trash.
    std::set<int> shown;
};

TEST_F(PickerCards, TheTreeTheCountsAndEveryFoldersCardsAreThoseOfTheDatabase) {
    for (const char* database : {"edge", "demo", "nofolders", "empty"}) {
        SCOPED_TRACE(database);
        const Written written(database);
        pick(database, [&](frmSendMan& picker) {
            const auto in_tree = [&](const CardTable::Row& row) {
                return written.shown.empty() || written.shown.contains(written.cards.number(row, u"f_idx"));
            };
            EXPECT_EQ(names(picker), written.names(in_tree));
            std::set<int> shown;
            int total = 0;
            for (std::size_t position = 2; position <= picker.TreeView1.node_count(); ++position) {
                platform::TreeNode& node = picker.TreeView1.node(position);
                const int folder = std::stoi(utf8(node.tag()));
                const int count = written.count(folder);
                total += count;
                if (node.parent() == nullptr) continue;  // the trash, where there are no folders
                shown.insert(folder);
                EXPECT_TRUE(utf8(node.text()).ends_with("(" + std::to_string(count) + ")"));
                picker.TreeView1.user_click(node);
                EXPECT_EQ(names(picker), written.names([&](const auto& row) {
                    return written.cards.number(row, u"f_idx") == folder;
                })) << folder;
            }
            EXPECT_EQ(shown, written.shown);
            EXPECT_TRUE(utf8(picker.caption()).starts_with("발송대상 선택-" + std::to_string(total) + "/"));
        });
    }
}

TEST_F(PickerCards, ASearchFindsNamesAndCompaniesOutsideTheTrashInEveryMode) {
    const std::function<bool(const Text&, const Text&)> modes[] = {
        [](const Text& value, const Text& typed) { return value.starts_with(typed); },
        [](const Text& value, const Text& typed) { return platform::contains(value, typed); },
        [](const Text& value, const Text& typed) { return value == typed; },
    };
    const std::pair<const char*, std::vector<Text>> databases[] = {
        {"demo", {u"차오름", u"예호", u"(주)", u"없는 사람"}},
        {"edge", {u"jo", u"It", u"회사", u"이름회사", u"없는이름"}},
    };
    for (const auto& [database, texts] : databases) {
        const Written written(database);
        std::size_t found = 0;
        pick(database, [&, &searched_for = texts](frmSendMan& picker) {
            for (const Text& typed : searched_for) {
                for (std::size_t mode = 0; mode < std::size(modes); ++mode) {
                    const auto matches = [&](const CardTable::Row& row, platform::TextView column) {
                        const auto& value = written.cards.at(row, column);
                        return value &&
                               modes[mode](platform::lower_case(*value), platform::lower_case(typed));
                    };
                    picker.Combo4.set_list_index(static_cast<int>(mode));
                    picker.Text1.set_text(typed);
                    picker.Command1.Click.raise();
                    EXPECT_EQ(names(picker), written.names([&](const auto& row) {
                        return written.shown.contains(written.cards.number(row, u"f_idx")) &&
                               (matches(row, u"FullName") || matches(row, u"CompanyName"));
                    })) << utf8(typed)
                        << " in mode " << mode;
                    found += names(picker).size();
                }
            }
        });
        EXPECT_GT(found, 10U) << database;
    }
}

TEST_F(PickerCards, ADamagedDatabaseIsReportedAndShowsNoneOfItsCards) {
    disk.put_bytes("no database");
    const platform::MessageBox damaged =
        tests::critical(u"오류번호:-2147467259(" + files_on_disk.application_directory() +
                        u"\\CardvaleDB.vdb)\r\n\r\n데이터베이스 형식을 인식할 수 없습니다.");
    for (int box = 0; box < 2; ++box) desktop.expect_box(damaged);
    desktop.in_form<frmSendMan>(u"frmSendMan", [](frmSendMan& picker) {
        EXPECT_EQ(picker.ListView2.row_count(), 0u);
        picker.unload();
    });
    frmSendMan(machine, state, form.recipients, form.Timer1).ShowEnter(u"문자메시지");
}

}  // namespace
