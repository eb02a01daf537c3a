#include "platform/text/cp949.h"

#include "tests/support/tsv.h"

#include <gtest/gtest.h>
#include <map>

namespace {

using platform::Text;
using tests::from_hex;
using tests::read_tsv;

std::string two(int lead, int trail) { return {static_cast<char>(lead), static_cast<char>(trail)}; }

TEST(Cp949, EveryCodeUnitIsEncodedAsThePlatformEncodesIt) {
    std::map<char16_t, std::string> expected;
    for (const auto& row : read_tsv("cp949.encode.tsv")) {
        expected[static_cast<char16_t>(std::stoi(row[0], nullptr, 16))] = from_hex(row[1]);
    }
    for (unsigned i = 0; i < 0x10000; ++i) {
        const auto unit = static_cast<char16_t>(i);
        const auto found = expected.find(unit);
        const std::string bytes = found == expected.end() ? "?" : found->second;
        ASSERT_EQ(platform::encode_cp949(Text(1, unit)), bytes) << std::hex << i;
        ASSERT_EQ(platform::cp949_bytes(unit), bytes.size()) << std::hex << i;
        ASSERT_EQ(platform::cp949_length(Text(3, unit)), 3 * bytes.size()) << std::hex << i;
    }
}

TEST(Cp949, EveryByteAndEveryPairIsDecodedAsThePlatformDecodesIt) {
    std::map<std::string, char16_t> expected;
    for (const auto& row : read_tsv("cp949.decode.tsv")) {
        expected[from_hex(row[0])] = static_cast<char16_t>(std::stoi(row[1], nullptr, 16));
    }
    const auto character = [&](const std::string& bytes) {
        const auto found = expected.find(bytes);
        return found == expected.end() ? u'?' : found->second;
    };
    for (int first = 0; first < 0x100; ++first) {
        const std::string single(1, static_cast<char>(first));
        const bool lead = expected.count(single) == 0;
        ASSERT_EQ(platform::is_cp949_lead(single[0]), lead) << std::hex << first;
        ASSERT_EQ(platform::decode_cp949(single), Text(1, character(single))) << std::hex << first;
        for (int second = 0; second < 0x100; ++second) {
            const std::string pair = two(first, second);
            const Text text =
                lead ? Text{character(pair)}
                     : Text{character(single), character(std::string(1, static_cast<char>(second)))};
            ASSERT_EQ(platform::decode_cp949(pair), text) << std::hex << first << ' ' << second;
        }
    }
}

TEST(Cp949, MixedTextsGoThroughInOrder) {
    EXPECT_EQ(platform::encode_cp949(u"x\U0001F600y"), "x??y") << "an emoji is two code units";
    EXPECT_EQ(platform::decode_cp949("a\xC7\xD1\x81\x41z\xC7"), u"a한갂z?");
    EXPECT_EQ(platform::decode_cp949("\xC7\r\n"), u"?\n") << "a lead byte takes its trail byte with it";
}

TEST(Cp949, WhatIsLostIsCountedAsAReaderDoes) {
    const struct {
        Text text;
        std::vector<platform::TextRange> lost;
        Text rest;
    } rows[] = {
        {u"안녕? é♡", {}, u"안녕? é♡"},
        {u"가\U0001F600나\U0001F600", {{1, 2}, {4, 2}}, u"가나"},
        {u"\U0001F600\U0001F600", {{0, 2}, {2, 2}}, u""},
        {u"\U0001F44D\U0001F3FD!", {{0, 4}}, u"!"},
        {u"\u2764\uFE0F\u200D\U0001F525a", {{0, 5}}, u"a"},
        {u"1\uFE0F\u20E3", {{1, 2}}, u"1"},
        {u"x\xD83D", {{1, 1}}, u"x"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(platform::to_utf8(row.text));
        EXPECT_EQ(platform::lost_in_cp949(row.text), row.lost);
        EXPECT_EQ(platform::without_lost_in_cp949(row.text), row.rest);
    }
}

TEST(Cp949, CuttingBytesNeverSplitsACharacter) {
    const std::string bytes = "a\xC7\xD1\x81\x41z";
    const std::size_t kept[] = {0, 1, 1, 3, 3, 5, 6, 6};
    for (std::size_t limit = 0; limit < std::size(kept); ++limit) {
        EXPECT_EQ(platform::cut_bytes(bytes, limit), bytes.substr(0, kept[limit])) << limit;
    }
    EXPECT_EQ(platform::cut_bytes("\xC7", 5), "\xC7");
}

}  // namespace
