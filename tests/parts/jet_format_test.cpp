#include "machine/jet/file/connection_string.h"
#include "machine/jet/file/jet_values.h"
#include "machine/jet/reader/card_stream.h"
#include "machine/jet/sql/like_pattern.h"
#include "machine/jet/sql/statement.h"
#include "platform/error.h"
#include "tests/support/files_on_disk.h"
#include "tests/support/utf8.h"

#include <gtest/gtest.h>

namespace {

using namespace platform;
using namespace machine::jet;
using tests::utf8;
using namespace std::string_view_literals;

TEST(LikePattern, KnowsWildCardsAndSetsAndNoCase) {
    const struct {
        TextView text, pattern;
        bool matches;
    } rows[] = {
        {u"김철수", u"김%", true},
        {u"김철수", u"철수", false},
        {u"김철수", u"%철수", true},
        {u"김철수", u"김_수", true},
        {u"김철수", u"김__수", false},
        {u"", u"%", true},
        {u"", u"_", false},
        {u"", u"", true},
        {u"a", u"", false},
        {u"aab", u"%ab", true},
        {u"abcabd", u"%abd", true},
        {u"ababab", u"a%b_b", true},
        {u"SMITH", u"sm%", true},
        {u"Ünal", u"ü%", true},
        {u"ＡＢ", u"ａｂ", true},
        {u"100% 한우", u"100[%]%", true},
        {u"1000 한우", u"100[%]%", false},
        {u"a_b", u"a[_]b", true},
        {u"axb", u"a[_]b", false},
        {u"b", u"[a-c]", true},
        {u"B", u"[a-c]", true},
        {u"d", u"[a-c]", false},
        {u"d", u"[!a-c]", true},
        {u"d", u"[^a-c]", true},
        {u"b", u"[!a-c]", false},
        {u"-", u"[a-]", true},
        {u"!", u"[!]", true},
        {u"ab", u"a[]b", true},
        {u"[", u"[[]", true},
        {u"a]", u"a]", true},
        {u"나", u"[가-다]", true},
    };
    for (const auto& row : rows) {
        const auto pattern = LikePattern::parse(row.pattern);
        ASSERT_TRUE(pattern) << utf8(row.pattern);
        EXPECT_EQ(pattern->matches(row.text), row.matches) << utf8(row.text) << " LIKE " << utf8(row.pattern);
    }
    for (const auto* broken : {u"a[", u"%[b%", u"[z-a]"})
        EXPECT_FALSE(LikePattern::parse(broken)) << utf8(broken);
}

TEST(Statement, IsTranslatedForSqlite) {
    const struct {
        const char16_t *sent, *run;
    } rows[] = {
        {u"Where [a.f_idx]=5 AND [a.p_idx]=0", u"Where [a].[f_idx]=5 AND [a].[p_idx]=0"},
        {u"where f_idx <> 1000", u"where f_idx <> 1000"},
        {u"(select * from t where f_idx=1 or F_IDX=-2 or f_idx=30) a",
         u"(select * from t where +f_idx IN (1,-2,30)) a"},
        // A part of a condition stays.
        {u"where f_idx=1 or p_idx=2", u"where f_idx=1 or p_idx=2"},
        {u"where f_idx=1 or f_idx=2 and x", u"where f_idx=1 or f_idx=2 and x"},
        {u"where x and f_idx=1 or f_idx=2", u"where x and f_idx=1 or f_idx=2"},
        {u"where f_idx= or f_idx=2", u"where f_idx= or f_idx=2"},
        {u"x LIKE '%[a.b] or --''/*%'", u"x LIKE '%[a.b] or --''/*%'"},
    };
    for (const auto& row : rows) EXPECT_EQ(utf8(sqlite_statement(row.sent)), utf8(row.run));

    for (const auto* broken : {u"x LIKE 'O'Brien%'", u"select [a", u"select 1 --", u"select /* */ 1"}) {
        EXPECT_EQ(tests::error_number([&] { sqlite_statement(broken); }), -2147217900) << utf8(broken);
    }
}

TEST(JetText, IsUtf16OrCompressedAfterAMark) {
    const struct {
        std::string_view bytes;
        const char16_t* text;
    } rows[] = {{""sv, u""},
                {"\xFF\xFE"sv, u""},
                {"\x5C\xD5 \0"sv, u"한 "},
                {"\xFF\xFE"
                 "ab\xE9"sv,
                 u"abé"},
                {"\xFF\xFE"
                 "a\0\x5C\xD5\0b"sv,
                 u"a한b"}};
    for (const auto& row : rows) EXPECT_EQ(utf8(decode_jet_text(row.bytes).value()), utf8(row.text));
    for (const auto broken : {"a"sv, "\x5C\xD5 "sv, "\xFF\xFE\0\x1C"sv})
        EXPECT_FALSE(decode_jet_text(broken));
}

TEST(ConnectionString, HoldsAFileAndAPassword) {
    const auto parsed = ConnectionString::parse(
        u"provider=x;Data Source=z:\\앱\\a b.vdb;jet oledb:database password=p=1;User ID=admin;;");
    EXPECT_EQ(utf8(parsed.data_source), "z:\\앱\\a b.vdb");
    EXPECT_EQ(utf8(parsed.password), "p=1");
    EXPECT_TRUE(ConnectionString::parse(u"").data_source.empty());
}

struct Parsed {
    std::string text;
    bool good = true, complete = false;
};

/// What a parser makes of the stream when it arrives in pieces of this length.
Parsed parse(std::string_view stream, std::size_t piece) {
    Parsed result;
    CardStreamParser parser([&](Table table, const machine::jet::Row& row) {
        result.text += table == Table::folder ? "F" : "C";
        for (const Cell& cell : row) {
            if (const auto* number = std::get_if<std::int32_t>(&cell)) result.text += std::to_string(*number);
            if (const auto* text = std::get_if<TextView>(&cell)) result.text += "'" + utf8(*text) + "'";
        }
    });
    for (; !stream.empty() && result.good; stream.remove_prefix(std::min(piece, stream.size())))
        result.good = parser.feed(stream.substr(0, piece));
    result.complete = parser.is_complete();
    return result;
}

std::string sample_stream() {
    std::string stream = stream_start();
    append_row(stream, Table::folder, {1, 0, TextView(u"전체")});
    append_row(stream, Table::folder, {-7, 1, TextView(u"")});
    append_row(stream, Table::card, {-7, Cell(), 2147483647, TextView(u"김\t수")});
    append_end(stream, 2, 1);
    return stream;
}

TEST(CardStream, IsWholeInAnyPiecesOrDiscarded) {
    const std::string stream = sample_stream();
    for (const std::size_t piece : {std::size_t{1}, std::size_t{7}, stream.size()}) {
        const Parsed result = parse(stream, piece);
        EXPECT_EQ(result.text, "F10'전체'F-71''C-72147483647'김\t수'");
        EXPECT_TRUE(result.complete);
    }
    for (std::size_t end = 0; end < stream.size(); ++end) {
        const Parsed result = parse(stream.substr(0, end), 16);
        EXPECT_TRUE(result.good) << end;
        EXPECT_FALSE(result.complete) << end;
    }
    EXPECT_FALSE(parse(stream + "x", 16).good) << "something behind the end";
}

TEST(CardStream, IsRefusedAtItsFirstFault) {
    const std::string stream = sample_stream();
    std::string wrong_count = stream_start();
    append_row(wrong_count, Table::folder, {1, 0, TextView(u"전체")});
    append_end(wrong_count, 2, 0);
    std::string text_for_a_number = stream_start();
    append_row(text_for_a_number, Table::folder, {TextView(u"1"), 0, TextView(u"전체")});
    std::string other_version = stream, other_table = stream, long_frame = stream, long_text = stream;
    ++other_version[6];
    other_table[13] = 2;
    long_frame[11] = 1;
    long_text[25] = 127;
    for (const auto& broken :
         {wrong_count, text_for_a_number, other_version, other_table, long_frame, long_text}) {
        EXPECT_FALSE(parse(broken, broken.size()).good);
    }
}

}  // namespace
