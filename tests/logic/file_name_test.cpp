#include "platform/file_name.h"

#include "platform/error.h"
#include "platform/formats/shown_path.h"
#include "platform/text/hangul.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

namespace {

using namespace platform;

TEST(FileName, AreRefusedWhenAnySystemRefusesOrHidesThem) {
    for (const Text& good : {Text(u"인사.txt"), Text(u"console"), Text(u"com0"), Text(u"a. b"), Text(u" a"),
                             Text(85, u'한'), Text(u"com10.txt")}) {
        EXPECT_NO_THROW(check_file_name(good)) << to_utf8(good);
    }
    for (const Text& bad :
         {Text(),         Text(u"a\\b"),     Text(u"a/b"),        Text(u"a:b"),      Text(u"*"),
          Text(u"?"),     Text(u"\""),       Text(u"<"),          Text(u">"),        Text(u"|"),
          Text(u"a\r\n"), Text(u".."),       Text(u".a"),         Text(u"a."),       Text(u"a "),
          Text(u"CON"),   Text(u"con .txt"), Text(u"nul.tar.gz"), Text(u"Com9.txt"), Text(86, u'한')}) {
        EXPECT_THROW(check_file_name(bad), RuntimeError) << to_utf8(bad);
    }
}

TEST(FileName, StandsInFrontOfItsFolder) {
    EXPECT_EQ(shown_path(u"z:\\home\\kim\\견적.doc"), u"견적.doc — /home/kim");
    EXPECT_EQ(shown_path(u"Z:\\견적.doc"), u"견적.doc — /");
    EXPECT_EQ(shown_path(u"c:\\temp\\a.wav"), u"a.wav — c:\\temp");
    EXPECT_EQ(shown_path(u"/home/kim/a.wav"), u"a.wav — /home/kim");
    EXPECT_EQ(shown_path(u"a.wav"), u"a.wav");
}

TEST(FileName, AreListedWithoutRegardToCase) {
    std::vector<Text> names{u"b", u"가", u"_", u"A", u"ab", u"a", u"B1", u"나"};
    std::ranges::sort(names, name_precedes);
    EXPECT_EQ(names, (std::vector<Text>{u"A", u"a", u"ab", u"b", u"B1", u"_", u"가", u"나"}));
}

TEST(Hangul, EverySyllableIsComposedOfItsLetters) {
    for (char16_t syllable = 0xAC00; syllable <= 0xD7A3; ++syllable) {
        const Text letters = decompose_hangul(Text(1, syllable));
        ASSERT_EQ(compose_hangul(letters), Text(1, syllable));
    }
    EXPECT_EQ(decompose_hangul(u"a각가"), u"a\u1100\u1161\u11A8\u1100\u1161");
    EXPECT_EQ(compose_hangul(u"\u1100\u1161\u11A8\u11A8\u1161ㄱㅏ가\u11A7"), u"각\u11A8\u1161ㄱㅏ가\u11A7");
}

}  // namespace
