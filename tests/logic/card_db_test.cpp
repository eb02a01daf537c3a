#include "addressbook/card_db.h"

#include "addressbook/statements.h"
#include "tests/support/test_platform.h"
#include "tests/support/utf8.h"

#include <gtest/gtest.h>

namespace {

using namespace addressbook;
using platform::ErrorNumber;
using platform::RuntimeError;
using platform::Text;
using tests::utf8;

struct CardDb : testing::Test, tests::TestPlatform {};

TEST_F(CardDb, EveryOpeningIsANewConnectionWithTheManagersPassword) {
    EXPECT_TRUE(OPEN_CARD_DB(platform, state, true));
    desktop.pointer = platform::Pointer::hourglass;
    EXPECT_TRUE(OPEN_CARD_DB(platform, state, true));
    EXPECT_EQ(desktop.pointer, platform::Pointer::normal);
    EXPECT_EQ(cards.open_connections, 1);
    ASSERT_EQ(cards.connected.size(), 2u);
    EXPECT_EQ(utf8(cards.connected.front()),
              "provider=Microsoft.Jet.OLEDB.4.0;Data Source=z:\\app\\CardvaleDB.vdb;Jet OLEDB:Database "
              "Password=cardvale070915;Persist Security Info=True;User ID=admin");
}

TEST_F(CardDb, AFailureLeavesNothingOpenAndIsShownWhenAsked) {
    const struct {
        std::optional<RuntimeError> refusal;
        int state;
        const char16_t* result;
    } rows[] = {
        {RuntimeError(ErrorNumber::file_not_found, u"없습니다."), platform::CONNECTION_OPEN,
         u"오류번호:53(z:\\app\\CardvaleDB.vdb)\r\n\r\n없습니다."},
        {std::nullopt, platform::CONNECTION_CLOSED, u"데이터베이스 오픈오류!"},
    };
    for (const auto& row : rows) {
        ASSERT_TRUE(OPEN_CARD_DB(platform, state, true));
        cards.refusal = row.refusal;
        cards.state = row.state;
        EXPECT_FALSE(OPEN_CARD_DB(platform, state, false)) << "an unexpected box fails";
        desktop.expect_box(tests::critical(row.result));
        EXPECT_FALSE(OPEN_CARD_DB(platform, state, true));
        EXPECT_EQ(state.cards.gCardDb, nullptr);
        EXPECT_THROW(open_recordset(state, u"SELECT 1"), RuntimeError);
        cards.refusal.reset();
        cards.state = platform::CONNECTION_OPEN;
    }
}

TEST(Statements, AreThoseThatTheCardManagersDatabaseUnderstands) {
    const std::string fields =
        "SELECT a.f_idx,a.p_idx,i_idx,FullName,CompanyName,Department,JobTitle,Company_addr,"
        "Company_zipcode,Cellphone,Beeper,Email,Email2,Company_phone1,Company_phone2,Company_fax1,Webpage,"
        "Memo_,";
    const std::string join = " a left outer JOIN [tbl_folder] b on a.f_idx=b.f_idx Where ";
    const std::string order = " ORDER BY [a.i_idx] asc";
    const Text filter = statements::folder_filter({u"2", u"30"});
    EXPECT_EQ(utf8(filter), "f_idx=2 or f_idx=30");
    EXPECT_EQ(utf8(statements::folder_filter({})), "");
    EXPECT_EQ(utf8(statements::cards_of_folder(u"7")),
              fields + "Fname,Fname_photo,b.folder_name FROM [tbl_namecard]" + join +
                  "[a.f_idx]=7 AND [a.p_idx]=0" + order);
    const std::string lists = fields + "b.folder_name FROM ";
    EXPECT_EQ(
        utf8(statements::all_cards(filter)),
        lists + "(select * from [tbl_namecard] where f_idx=2 or f_idx=30)" + join + "[a.p_idx]=0" + order);
    EXPECT_EQ(utf8(statements::all_cards(u"")), lists + "[tbl_namecard]" + join + "[a.p_idx]=0" + order);
    EXPECT_EQ(utf8(statements::matching_cards(filter, u"X")),
              lists + "(select * from tbl_namecard where f_idx=2 or f_idx=30)" + join + "X" + order);
    EXPECT_EQ(utf8(statements::matching_cards(u"", u"X")), lists + "[tbl_namecard]" + join + "X" + order);
    EXPECT_EQ(utf8(statements::card_count(u"7")),
              "SELECT COUNT(*) as RNO FROM [tbl_namecard] WHERE [f_idx]=7");
}

TEST(Statements, AMatchClauseHoldsTheTextExactlyAsTyped) {
    const struct {
        const char16_t *mode, *text;
        const char* pattern;
    } rows[] = {
        {u"~로 시작", u" 홍", " 홍%"},
        {u"~를 포함", u"O'B_", "%O'B_%"},
        {u"~과 일치", u"100%[", "100%["},
    };
    for (const auto& row : rows) {
        const std::string pattern = row.pattern;
        EXPECT_EQ(utf8(statements::match_clause(row.mode, row.text)), "([a.CompanyName] LIKE '" + pattern +
                                                                          "' OR [a.FullName] LIKE '" +
                                                                          pattern + "') AND [a.p_idx]=0");
    }
    EXPECT_TRUE(statements::match_clause(u"", u"홍").empty());
}

}  // namespace
