#include "platform/text/number.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace {

using namespace platform;

constexpr double LARGEST = std::numeric_limits<double>::max();

TEST(Number, IsTheOneThatATextBeginsWith) {
    const struct {
        Text text;
        double number;
    } rows[] = {
        {u"", 0},        {u"abc", 0},     {u" \t\r\n 30분", 30}, {u"030312345678", 30312345678.0},
        {u"-5x", -5},    {u"+5", 5},      {u"--5", 0},           {u".", 0},
        {u".5", 0.5},    {u"1.2.3", 1.2}, {u"1,234", 1},         {u"1E+2", 100},
        {u"25e-1", 2.5}, {u"5e+", 5},     {u"inf", 0},           {u"0x10", 0},
        {u"１２", 0}  // full-width digits count as letters here
    };
    for (const auto& row : rows)
        EXPECT_EQ(leading_number(row.text), row.number) << testing::PrintToString(row.text);
}

TEST(Number, IsFiniteForEveryText) {
    const Text nines(400, u'9'), zeros(400, u'0');
    EXPECT_EQ(leading_number(u"-" + nines), -LARGEST);
    EXPECT_EQ(leading_number(u"1e99999999999999999999"), LARGEST);
    EXPECT_EQ(leading_number(u"1e-99999999999999999999"), 0);
    EXPECT_EQ(leading_number(u"0e99999999999999999999"), 0);
    EXPECT_EQ(leading_number(zeros + u"7"), 7);
    EXPECT_EQ(leading_number(u"0." + zeros + u"1e401"), 1);
}

TEST(Number, NeedsTheWholeTextWhenConverted) {
    EXPECT_EQ(text_as_number(u" 1,234.5 "), 1234.5);
    EXPECT_EQ(text_as_number(u"-5"), -5);
    for (const TextView text : {u"", u" ", u"12abc", u",1", u"1 2", u"0x10", u"1e999", u"-", u"5-"}) {
        EXPECT_EQ(text_as_number(text), std::nullopt) << testing::PrintToString(Text(text));
    }
}

TEST(Number, SwitchesASettingOnWhenItIsOne) {
    for (const TextView on : {u"1", u"1.0", u"1abc", u" 1", u"+1", u"01"}) EXPECT_TRUE(is_on(on));
    for (const TextView off : {u"", u"0", u"2", u"abc", u"-1", u"1.5", u"10"}) EXPECT_FALSE(is_on(off));
}

TEST(Number, RoundsHalvesToTheEvenNeighbour) {
    const std::pair<double, long> rows[] = {{0.5, 0},   {1.25, 1},  {1.5, 2},   {2.51, 3},
                                            {-1.5, -2}, {-2.5, -2}, {-2.6, -3}, {80.0, 80}};
    for (const auto& [number, rounded] : rows) EXPECT_EQ(round_half_even(number), rounded) << number;
    EXPECT_EQ(round_half_even(0.49999999999999994), 0);
    EXPECT_EQ(round_half_even(1e300), std::numeric_limits<long>::max());
    EXPECT_EQ(round_half_even(-1e300), std::numeric_limits<long>::min());
    EXPECT_EQ(round_half_even(std::nan("")), 0);
}

}  // namespace
