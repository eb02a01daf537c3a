#include "platform/text/text.h"

#include "platform/error.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace {

using namespace platform;

TEST(Text, TrimmingRemovesOnlyBlanks) {
    EXPECT_EQ(trim(u"  가 나  "), u"가 나");
    EXPECT_EQ(trim(u" \t가\t "), u"\t가\t") << "tabs are content";
    EXPECT_EQ(trim(u"\u3000가\u3000"), u"\u3000가\u3000") << "wide blanks are content";
    EXPECT_EQ(right_trim(u"  가  "), u"  가");
}

TEST(Text, ReplacingContinuesAfterTheReplacement) {
    EXPECT_EQ(replace_all(u"{이름}님 {이름}", u"{이름}", u"홍{이름}"), u"홍{이름}님 홍{이름}");
    EXPECT_EQ(replace_all(u"aaa", u"aa", u"b"), u"ba");
    EXPECT_EQ(replace_all(u"abc", u"", u"x"), u"abc");
}

TEST(Text, CaseIsIgnoredOnlyForAsciiLetters) {
    EXPECT_EQ(lower_case(u"AZ[ÀÉ가"), u"az[ÀÉ가");
    EXPECT_TRUE(equal_without_case(u"ZentUserPhoneID", u"ZENTUserPhoneID"));
    EXPECT_FALSE(equal_without_case(u"a", u"ab"));
    EXPECT_FALSE(equal_without_case(u"@", u"`")) << "these differ by the case bit only";
}

TEST(Text, Utf8RoundTripsAndBrokenSequencesBecomeReplacementCharacters) {
    const Text text = u"a\u00E9한\uFFFF\U0001F600\U0010FFFF";
    EXPECT_EQ(to_utf8(text), "a\u00E9한\uFFFF\U0001F600\U0010FFFF");
    EXPECT_EQ(from_utf8(to_utf8(text)), text);

    EXPECT_EQ(to_utf8(Text{u'a', 0xD83D}), "a\uFFFD");
    EXPECT_EQ(to_utf8(Text{0xDE00, u'a'}),
              "\uFFFD"
              "a");

    const struct {
        std::string_view bytes;
        Text text;
    } broken[] = {
        {"\xC7", u"\uFFFD"},                // ends in mid-character
        {"\xED\x95z", u"\uFFFDz"},          // the next character survives
        {"\x80z", u"\uFFFDz"},              // a tail without a lead
        {"\xC0\x80z", u"\uFFFD\uFFFDz"},    // an overlong zero
        {"\xE0\x80\xAFz", u"\uFFFDz"},      // an overlong slash
        {"\xED\xA0\x80z", u"\uFFFDz"},      // a surrogate
        {"\xF4\x90\x80\x80z", u"\uFFFDz"},  // beyond the last character
        {"\xFFz", u"\uFFFDz"},
    };
    for (const auto& row : broken)
        EXPECT_EQ(from_utf8(row.bytes), row.text) << testing::PrintToString(row.bytes);
}

TEST(RuntimeError, CarriesItsNumberAndAKoreanDescription) {
    const RuntimeError error(ErrorNumber::file_not_found);
    EXPECT_EQ(error.number(), 53);
    EXPECT_EQ(error.description(), u"파일을 찾을 수 없습니다.");
    EXPECT_EQ(RuntimeError(ErrorNumber::path_access, u"다른 설명").description(), u"다른 설명");
}

TEST(RuntimeError, IgnoringErrorsSwallowsRunTimeErrorsAndNothingElse) {
    EXPECT_TRUE(ignore_errors([] {}));
    EXPECT_FALSE(ignore_errors([] { throw RuntimeError(ErrorNumber::disk_full); }));
    EXPECT_THROW(ignore_errors([] { throw std::logic_error("a fault of ours"); }), std::logic_error);
}

}  // namespace
