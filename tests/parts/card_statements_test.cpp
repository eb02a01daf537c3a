#include "addressbook/statements.h"
#include "platform/error.h"
#include "tests/parts/card_fixtures.h"
#include "tests/support/utf8.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

using namespace platform;
namespace statements = addressbook::statements;
using tests::CardsOnDisk;
using tests::CardTable;
using tests::utf8;

Text cards_like(const Text& pattern, TextView filter = {}) {
    return statements::matching_cards(filter, statements::match_clause(statements::EQUALS, pattern));
}

/// A value as the fixtures write it.
std::optional<Text> value_of(const CardField& field) {
    if (const auto* number = std::get_if<std::int32_t>(&field.value)) return decimal(*number);
    if (const auto* text = std::get_if<Text>(&field.value)) return *text;
    return std::nullopt;
}
std::string shown(const std::optional<Text>& value) { return value ? "'" + utf8(*value) + "'" : "NULL"; }

/// The values of the columns, row by row.
std::vector<std::string> rows_of(CardConnection& connection, const Text& statement,
                                 const std::vector<Text>& columns) {
    const auto recordset = connection.open_recordset(statement);
    std::vector<std::string> rows;
    for (; !recordset->end_of_file(); recordset->move_next()) {
        std::string row;
        for (const Text& column : columns) row += shown(value_of(recordset->field(column))) + " ";
        rows.push_back(row);
    }
    EXPECT_EQ(static_cast<int>(rows.size()), recordset->record_count());
    return rows;
}

const std::vector<Text> CARD_FIELDS = {
    u"f_idx",    u"p_idx",          u"i_idx",           u"FullName",     u"CompanyName", u"Department",
    u"JobTitle", u"Company_addr",   u"Company_zipcode", u"Cellphone",    u"Beeper",      u"Email",
    u"Email2",   u"Company_phone1", u"Company_phone2",  u"Company_fax1", u"Webpage"};

using Keep = std::function<bool(const CardTable::Row& row)>;

/// The columns of those rows of the table that are kept, in the order of `order`.
std::vector<std::string> expected(const CardTable& table, const std::vector<Text>& columns, TextView order,
                                  const Keep& keep) {
    std::vector<CardTable::Row> kept;
    std::ranges::copy_if(table.rows, std::back_inserter(kept), keep);
    if (!order.empty()) {
        std::ranges::stable_sort(kept, {}, [&](const auto& row) { return table.number(row, order); });
    }
    std::vector<std::string> rows;
    for (const auto& row : kept) {
        std::string shown_row;
        for (const Text& column : columns) shown_row += shown(table.at(row, column)) + " ";
        rows.push_back(shown_row);
    }
    return rows;
}

bool always(const CardTable::Row&) { return true; }

TEST(CardStatements, EveryFieldIsReadAsTheFileHasIt) {
    CardsOnDisk disk;
    std::vector<Text> columns = CARD_FIELDS;
    columns.insert(columns.end(), {u"Fname", u"Fname_photo"});
    for (const std::string name : {"demo", "edge", "empty", "nofolders", "orphan"}) {
        disk.put(name);
        const auto connection = disk.connect();
        EXPECT_EQ(
            rows_of(*connection, u"select * from tbl_folder", {u"f_idx", u"p_idx", u"folder_name"}),
            expected(CardTable(name + ".tbl_folder"), {u"f_idx", u"p_idx", u"folder_name"}, u"", always))
            << name;
        EXPECT_EQ(rows_of(*connection, u"select * from tbl_namecard", columns),
                  expected(CardTable(name + ".tbl_namecard"), columns, u"", always))
            << name;
    }
}

TEST(CardStatements, FoldersOutsideTheTrashAreReadInTheirOrder) {
    CardsOnDisk disk;
    disk.put("edge");
    const CardTable folders("edge.tbl_folder");
    EXPECT_EQ(rows_of(*disk.connect(), statements::folders_outside_trash(), {u"f_idx"}),
              expected(folders, {u"f_idx"}, u"f_idx", [&](const auto& row) {
                  return folders.number(row, u"f_idx") != 1000 && folders.number(row, u"p_idx") != 1000;
              }));
}

TEST(CardStatements, WildCardsInASearchMeanWhatTheyMeanToTheDatabase) {
    CardsOnDisk disk;
    disk.put("edge");
    const auto connection = disk.connect();
    const auto companies = [&](const Text& pattern) {
        std::string joined;
        for (const auto& row : rows_of(*connection, cards_like(pattern), {u"CompanyName"})) joined += row;
        return joined;
    };
    const std::string every_listed_one = companies(u"%");
    EXPECT_EQ(companies(u"_%"), companies(u"%_%"));
    EXPECT_NE(companies(u"_%"), every_listed_one) << "an empty text is no NULL";
    EXPECT_EQ(companies(u"%%"), every_listed_one) << "typing a wild card finds everything";
    EXPECT_EQ(companies(u"100[%] 한우"), "'100% 한우' ");
    EXPECT_EQ(companies(u"it''s 100[%][_]o%"), "'It's 100%_ok' ");
}

TEST(CardStatements, OnlyReadAndAreRefusedWhenFaulty) {
    CardsOnDisk disk;
    disk.put("edge");
    const auto connection = disk.connect();
    for (const Text& broken :
         {cards_like(u"O'Brien%"), cards_like(u"[%"), statements::matching_cards(u"", u""),
          statements::all_cards(u"f_idx= or f_idx=2"), Text(u""), Text(u"select nothing from tbl_folder"),
          Text(u"select * from tbl_cards"), Text(u"select 1; select 2"), Text(u"select ?"),
          Text(u"delete from tbl_folder"), Text(u"drop table tbl_folder"), Text(u"pragma encoding"),
          Text(u"attach ':memory:' as x"), Text(u"select randomblob(9)"),
          Text(u"select * from sqlite_master a, pragma_table_info('tbl_folder')"),
          Text(u"with recursive x(n) as (select 1 union all select n+1 from x) select n from x")}) {
        EXPECT_EQ(tests::error_number([&] { connection->open_recordset(broken); }), -2147217900)
            << utf8(broken);
    }
    EXPECT_EQ(connection->open_recordset(statements::folders())->record_count(), 23);

    connection->close();
    EXPECT_EQ(connection->state(), CONNECTION_CLOSED);
    EXPECT_EQ(tests::error_number([&] { connection->open_recordset(statements::folders()); }), 3709);
}

TEST(CardStatements, ReturnFieldsByNameInAnyCaseWithTheProvidersTypes) {
    CardsOnDisk disk;
    disk.put("edge");
    const auto connection = disk.connect();
    const auto count = connection->open_recordset(statements::card_count(u"10"));
    EXPECT_EQ(count->field(u"rno").type, FIELD_LONG);
    const auto cards = connection->open_recordset(statements::all_cards(u"f_idx=10"));
    EXPECT_EQ(cards->field(u"F_IDX").type, FIELD_LONG);
    EXPECT_EQ(cards->field(u"fullname").type, FIELD_TEXT);
    EXPECT_EQ(cards->field(u"Memo_").type, FIELD_MEMO);
    EXPECT_EQ(tests::error_number([&] { cards->field(u"Company_fax2"); }), 3265);
    while (!cards->end_of_file()) cards->move_next();
    EXPECT_EQ(tests::error_number([&] { cards->field(u"FullName"); }), 3021);
    EXPECT_EQ(tests::error_number([&] { cards->move_next(); }), 3021);
}

TEST(CardStatements, TakeAFilterOfTenThousandFolders) {
    CardsOnDisk disk;
    disk.put("edge");
    const auto connection = disk.connect();
    std::vector<Text> folders;
    for (int folder = 0; folder < 10'000; ++folder) folders.push_back(decimal(folder));
    const CardTable cards("edge.tbl_namecard");
    EXPECT_EQ(rows_of(*connection, statements::all_cards(statements::folder_filter(folders)), CARD_FIELDS),
              expected(cards, CARD_FIELDS, u"i_idx", [&](const auto& row) {
                  const int folder = cards.number(row, u"f_idx");
                  return cards.number(row, u"p_idx") == 0 && folder >= 0 && folder < 10'000;
              }));
}

TEST(CardStatements, KeepTheFilesOrderAmongEqualCards) {
    machine::jet::CardDatabase cards(std::make_shared<machine::jet::Heartbeat>(nullptr));
    cards.add(machine::jet::Table::folder, {1, 0, TextView(u"전체")});
    Text every_second, all;
    for (int i = 0; i < 1000; ++i) {
        const Text name = decimal(i);
        cards.add(machine::jet::Table::card, {i % 2 == 0 ? 9 : 8 - i % 5, 0, 7, TextView(name)});
        all += name + u" ";
        if (i % 2 == 0) every_second += name + u" ";
    }
    cards.all_added();
    const auto names = [&](const Text& statement) {
        const auto rows = cards.run(statement);
        Text joined;
        for (std::size_t i = 0; i < rows->size(); ++i)
            joined += std::get<Text>(rows->field(i, rows->column(u"FullName").value()).value) + u" ";
        return utf8(joined);
    };
    EXPECT_EQ(names(statements::cards_of_folder(u"9")), utf8(every_second));
    EXPECT_EQ(names(statements::all_cards(u"")), utf8(all));
    EXPECT_EQ(names(statements::all_cards(u"f_idx=9 or f_idx=8 or f_idx=7 or f_idx=6 or f_idx=5 or f_idx=4")),
              utf8(all));
    EXPECT_EQ(names(cards_like(u"%", u"f_idx=9")), utf8(every_second));
}

}  // namespace
