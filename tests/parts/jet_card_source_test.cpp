#include "platform/error.h"
#include "tests/parts/card_fixtures.h"
#include "tests/support/utf8.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

using namespace platform;
using tests::CardsOnDisk;
using tests::CardTable;

constexpr int UNUSABLE = -2147467259;
constexpr int WRONG_PASSWORD = -2147217843;

int rows_of(CardConnection& connection, const Text& table) {
    return connection.open_recordset(u"select f_idx from " + table)->record_count();
}

TEST(JetCardSource, OpensWithTheFilesPasswordOnlyAndAFileWithoutOneWithAny) {
    CardsOnDisk disk;
    const struct {
        const char* fixture;
        const char16_t* password;
        int error;
    } rows[] = {{"demo", u"cardvale070915", 0},
                {"demo", u"", WRONG_PASSWORD},
                {"demo", u"CARDVALE070915", WRONG_PASSWORD},
                {"demo", u"cardvale07091", WRONG_PASSWORD},
                {"wrongpass", u"cardvale070915", WRONG_PASSWORD},
                {"wrongpass", u"other1234", 0},
                {"nopass", u"cardvale070915", 0},
                {"nopass", u"", 0}};
    for (const auto& row : rows) {
        disk.put(row.fixture);
        // The second time the source already knows the file.
        for (int time = 0; time < 2; ++time)
            EXPECT_EQ(disk.error(row.password), row.error) << row.fixture << tests::utf8(row.password);
    }
}

TEST(JetCardSource, RefusesAMissingOrDamagedFile) {
    CardsOnDisk disk;
    EXPECT_EQ(disk.error(), UNUSABLE) << "missing";
    ASSERT_EQ(::mkfifo(disk.database.c_str(), 0600), 0);
    EXPECT_EQ(disk.error(), UNUSABLE) << "a pipe that nobody writes";
    std::filesystem::remove(disk.database);
    std::filesystem::create_directory(disk.database);
    EXPECT_EQ(disk.error(), UNUSABLE) << "a folder";
    std::filesystem::remove(disk.database);

    for (const char* fixture : {"zero", "truncated", "garbage", "notjet", "flipped-2", "flipped-3"}) {
        disk.put(std::string("damaged/") + fixture);
        EXPECT_EQ(disk.error(), UNUSABLE) << fixture;
    }
    disk.put("damaged/flipped-1");
    EXPECT_NE(disk.error(), 0);
    disk.put("damaged/memoloop");
    EXPECT_EQ(rows_of(*disk.connect(), u"tbl_namecard"), 150) << "a memo, which nobody reads, is broken";
}

/// However the file is damaged, the result is all rows or an error.
void expect_all_or_nothing(CardsOnDisk& disk, const std::string& what) {
    static const int folders = static_cast<int>(CardTable("edge.tbl_folder").rows.size());
    static const int cards = static_cast<int>(CardTable("edge.tbl_namecard").rows.size());
    try {
        const auto connection = disk.connect();
        EXPECT_EQ(rows_of(*connection, u"tbl_folder"), folders) << what;
        EXPECT_EQ(rows_of(*connection, u"tbl_namecard"), cards) << what;
    } catch (const RuntimeError& error) {
        EXPECT_TRUE(error.number() == UNUSABLE || error.number() == WRONG_PASSWORD) << what << error.what();
    }
}

TEST(JetCardSource, GivesAllCardsOrNoneOfAFileWithAFlippedByteOnAnyPage) {
    CardsOnDisk disk;
    const std::string sound = tests::bytes_of(CardsOnDisk::fixture("edge"));
    // The first bytes of a page hold its type and the positions of its rows.
    constexpr std::size_t OFFSETS[] = {0, 2, 4, 8, 12, 13, 16, 25, 40, 45, 63, 900, 2500, 4000, 4090};
    int n = 0;
    for (std::size_t page = 0; page < sound.size(); page += machine::jet::PAGE_BYTES) {
        for (const std::size_t offset : OFFSETS) {
            std::string flipped = sound;
            flipped[page + offset] = static_cast<char>(flipped[page + offset] ^ (1 << n++ % 8));
            disk.put_bytes(flipped);
            expect_all_or_nothing(disk, "byte " + std::to_string(page + offset));
        }
    }
}

TEST(JetCardSource, GivesAllCardsOrNoneOfAFileCutOrOverwrittenByPages) {
    CardsOnDisk disk;
    const std::string sound = tests::bytes_of(CardsOnDisk::fixture("edge"));
    const std::string blank(machine::jet::PAGE_BYTES, '\0');
    for (std::size_t page = 0; page < sound.size(); page += machine::jet::PAGE_BYTES) {
        disk.put_bytes(sound.substr(0, page));
        expect_all_or_nothing(disk, "cut at " + std::to_string(page));
        disk.put_bytes(std::string(sound).replace(page, blank.size(), blank));
        expect_all_or_nothing(disk, "blank at " + std::to_string(page));
        disk.put_bytes(std::string(sound).replace(page, blank.size(), sound.substr(0, blank.size())));
        expect_all_or_nothing(disk, "the first page at " + std::to_string(page));
    }
}

TEST(JetCardSource, AColumnThatNothingUsesMayBeOfAnyType) {
    CardsOnDisk disk;
    // Position of the column types in the definition of the cards' table, which has the columns in the order
    // of card_schema.
    constexpr std::size_t TYPES = 27 * machine::jet::PAGE_BYTES + 63 + 12, NEXT_TYPE = 25;
    constexpr char TEXT = 10, MEMO = 12;
    const auto with_memo = [&](std::size_t column) {
        std::string changed = tests::bytes_of(CardsOnDisk::fixture("demo"));
        EXPECT_EQ(std::exchange(changed.at(TYPES + column * NEXT_TYPE), MEMO), TEXT);
        disk.put_bytes(changed);
    };
    with_memo(11);
    const auto cards = disk.connect()->open_recordset(u"select Email,FullName from tbl_namecard");
    EXPECT_EQ(cards->record_count(), 150);
    EXPECT_TRUE(std::holds_alternative<std::monostate>(cards->field(u"Email").value));
    EXPECT_TRUE(std::holds_alternative<Text>(cards->field(u"FullName").value));
    with_memo(3);
    EXPECT_EQ(disk.error(), UNUSABLE) << "the name is used";
}

TEST(JetCardSource, ReadsOnceUntilTheFileChanges) {
    CardsOnDisk disk;
    disk.put("demo");
    const auto before = disk.connect();
    disk.put_reader("exit 1");
    EXPECT_EQ(rows_of(*disk.connect(), u"tbl_namecard"), 150) << "no second reading";

    disk.put("empty");
    EXPECT_EQ(disk.error(), UNUSABLE) << "the changed file is read, here by a reader that fails";
    std::filesystem::remove(disk.reader);
    std::filesystem::create_symlink(CARD_READER, disk.reader);
    EXPECT_EQ(disk.error(), UNUSABLE) << "what was wrong is not tried again";

    disk.put("empty");
    EXPECT_EQ(rows_of(*disk.connect(), u"tbl_namecard"), 0);
    EXPECT_EQ(rows_of(*before, u"tbl_namecard"), 150) << "an open connection keeps its contents";
}

TEST(JetCardSource, ReadsAFileAgainIfItChangedAMomentAgo) {
    CardsOnDisk disk;
    // Files of the same length and date, and a date in the future.
    const auto date = std::filesystem::file_time_type::clock::now() + std::chrono::hours(1);
    for (const auto& [fixture, folders] :
         {std::pair{"demo", 15}, {"nopass", 15}, {"damaged/flipped-3", -1}}) {
        tests::put(disk.database, tests::bytes_of(CardsOnDisk::fixture(fixture)));
        std::filesystem::last_write_time(disk.database, date);
        EXPECT_EQ(disk.error(), folders < 0 ? UNUSABLE : 0) << fixture;
    }
}

TEST(JetCardSource, NeverChangesTheFile) {
    CardsOnDisk disk;
    disk.put("edge");
    const auto date = std::filesystem::last_write_time(disk.database);
    std::filesystem::permissions(disk.database, std::filesystem::perms::owner_read);
    EXPECT_GT(rows_of(*disk.connect(), u"tbl_namecard"), 0);
    EXPECT_EQ(tests::bytes_of(disk.database), tests::bytes_of(CardsOnDisk::fixture("edge")));
    EXPECT_EQ(std::filesystem::last_write_time(disk.database), date);
    EXPECT_EQ(tests::names_in(disk.folder.path()), (std::set<std::string>{"CardvaleDB.vdb", "card-reader"}));
}

TEST(JetCardSource, SurvivesAnyEndOfTheReader) {
    CardsOnDisk disk;
    disk.put("demo");
    for (
        const char* script :
        {"kill -SEGV $$", "exit 0", "echo nonsense", "exec cat /dev/zero",
         R"(printf 'CARDS\000\001\n'; exit 0)",
         R"(printf 'CARDS\000\001\n'; while :; do printf 'R\011\000\000\000\000n\001\000\000\00000'; done)"}) {
        disk.put_reader(script);
        disk.put("demo");
        EXPECT_EQ(disk.error(), UNUSABLE) << script;
    }
    disk.put_reader("printf x >> " + disk.database.string());
    EXPECT_EQ(disk.error(), UNUSABLE) << "the file changes while it is read";
    std::filesystem::remove(disk.reader);
    disk.put("demo");
    EXPECT_EQ(disk.error(), UNUSABLE) << "no reader";
}

TEST(JetCardSource, KeepsPaintingWhileAReaderHangsAndGivesItUpInTime) {
    tests::TemporaryFolder folder;
    int beats = 0;
    machine::jet::JetCardSource source(
        machine::posix::Paths(folder.path().string()), [&] { ++beats; }, std::chrono::milliseconds(100));
    const auto reader = folder.path() / "card-reader";
    tests::put(reader, "#!/bin/sh\nexec tail -f /dev/null\n");
    std::filesystem::permissions(reader, std::filesystem::perms::owner_all);
    tests::put(folder.path() / "CardvaleDB.vdb", tests::bytes_of(CardsOnDisk::fixture("nopass")));
    EXPECT_EQ(tests::error_number([&] { source.connect(u"Data Source=CardvaleDB.vdb"); }), UNUSABLE);
    EXPECT_GE(beats, 1);
}

}  // namespace
