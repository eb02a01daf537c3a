#include "platform/text/format.h"

#include "platform/text/number.h"
#include "tests/support/tsv.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

using namespace platform;

constexpr TextView SERVICE_NUMBER = u"0000-####-####";

LocalTime time_of_fixture(const Text& text) {
    const auto number = [&](std::size_t at, std::size_t length) {
        return static_cast<int>(leading_number(text.substr(at, length)));
    };
    if (text == u"serial 0") return make_time(1899, 12, 30);
    return make_time(number(0, 4), number(5, 2), number(8, 2), number(11, 2), number(14, 2), number(17, 2));
}

/// Whether the digits are too few for the two right groups of a service number. The program leaves their
/// places empty; the formatter whose results were recorded puts zeros.
bool is_short(const Text& text) {
    const auto number = text_as_number(text);
    return number && number < 1e8;
}

Text format_as(const std::string& kind, const Text& input, const Text& pattern) {
    if (kind == "date") return format_date(time_of_fixture(input), pattern);
    if (pattern == SERVICE_NUMBER) return format_service_number(input);
    return format_number(leading_number(input), pattern);
}

TEST(Format, AgreesWithTheRecordedFormatter) {
    int rows = 0;
    for (const auto& row : tests::read_tsv("format.tsv")) {
        const auto field = [&](std::size_t i) { return row[i] == "\"\"" ? Text() : from_utf8(row[i]); };
        const Text input = field(1), pattern = field(2);
        if (row[0] == "date_string") continue;  // texts are converted to moments before they are formatted
        if (pattern == SERVICE_NUMBER && is_short(input)) continue;
        EXPECT_EQ(format_as(row[0], input, pattern), field(3)) << row[0] << ' ' << row[1] << ' ' << row[2];
        ++rows;
    }
    EXPECT_GT(rows, 300);
}

TEST(Format, AShortServiceNumberLeavesItsPlacesEmpty) {
    const struct {
        TextView value, layout;
    } rows[] = {{u"5", u"0000--5"},
                {u"12345", u"0000-1-2345"},
                {u"123456789", u"0001-2345-6789"},
                {u"030312345678", u"0303-1234-5678"},
                {u"1030312345678", u"10303-1234-5678"},
                {u"0", u"0000--"},
                {u"03030xxxxxxx", u"03030xxxxxxx"},
                {u"", u""}};
    for (const auto& row : rows) EXPECT_EQ(format_service_number(row.value), row.layout);
}

TEST(Format, TextsThatAreNoNumberAndNumbersThatRoundToNothingShowAsZero) {
    EXPECT_EQ(format_number(-0.4, u"#,##0"), u"0");
    EXPECT_EQ(format_number(std::numeric_limits<double>::quiet_NaN(), u"#,##0"), u"0");
    EXPECT_EQ(format_number(9.5, u"00"), u"10");
    EXPECT_EQ(format_number(std::numeric_limits<double>::max(), u"0").size(), 309u);
}

TEST(Format, AnElapsedTimeShowsAsAClockTimeWithoutItsWholeDays) {
    const LocalTime start = make_time(2008, 7, 5, 23, 59, 58);
    const struct {
        LocalTime end;
        TextView elapsed, lead;
    } rows[] = {
        {start, u"00:00:00", u"000000"},
        {make_time(2008, 7, 6, 0, 0, 3), u"00:00:05", u"000000"},
        {make_time(2008, 7, 5, 23, 29, 58), u"00:30:00", u"003000"},  // the sign is lost
        {make_time(2008, 7, 7, 1, 59, 58), u"02:00:00", u"020000"},   // whole days are lost
        {make_time(2008, 7, 4, 23, 59, 59), u"23:59:59", u"235900"},
    };
    for (const auto& row : rows) {
        const double days = day_difference(row.end, start);
        EXPECT_EQ(format_day_fraction(days, u"hh:nn:ss"), row.elapsed);
        EXPECT_EQ(format_day_fraction(days, u"hhmm00"), row.lead);
    }
    EXPECT_EQ(format_day_fraction(0.99999999, u"hh:nn:ss"), u"00:00:00") << "rounds up into the next day";
}

TEST(Calendar, MomentsAreMadeAndTakenApart) {
    const CalendarTime leap = break_up(make_time(2012, 2, 29, 23, 59, 59) + std::chrono::seconds{1});
    EXPECT_EQ(leap.month, 3);
    EXPECT_EQ(leap.day, 1);
    EXPECT_EQ(make_time(2009, 2, 30), make_time(2009, 3, 2));
    EXPECT_EQ(make_time(2008, 7, 5, 24, 75), make_time(2008, 7, 6, 1, 15));

    const LocalTime old =
        make_time(1899, 12, 29, 18, 30);  // before the epoch, where truncation would go wrong
    EXPECT_EQ(date_part(old), make_time(1899, 12, 29));
    EXPECT_EQ(time_of_day(old), std::chrono::minutes{18 * 60 + 30});
    EXPECT_EQ(break_up(old).hour, 18);
    EXPECT_EQ(add_days(old, 1), make_time(1899, 12, 30, 18, 30));
    EXPECT_DOUBLE_EQ(day_difference(make_time(2009, 1, 1), make_time(2009, 1, 2, 12)), -1.5);
}

}  // namespace
