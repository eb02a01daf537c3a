#include "platform/formats/people_lines.h"

#include "platform/text/cp949.h"
#include "platform/text/unknown_encoding.h"
#include "tests/support/utf8.h"

#include <gtest/gtest.h>
#include <string>

namespace {

using namespace platform;
using tests::utf8;

/// "name/number+number/title" of each line; "-" for one that names nobody, "?" for one not understood.
std::string read(const std::string& lines) {
    const Text text = from_utf8(lines);
    PeopleLines people;
    std::string all;
    for (const TextView line : split(text, u'\n')) {
        ListedPerson person;
        const PeopleLines::Line kind = people.read(line, person);
        if (!all.empty()) all += " | ";
        if (kind == PeopleLines::Line::blank || kind == PeopleLines::Line::captions) all += "-";
        if (kind == PeopleLines::Line::not_understood) all += "?";
        if (kind != PeopleLines::Line::person) continue;
        std::string numbers;
        for (const Text& number : person.numbers) numbers += (numbers.empty() ? "" : "+") + utf8(number);
        all += utf8(person.name) + "/" + numbers + "/" + utf8(person.title);
    }
    return all;
}

TEST(PeopleLines, ArriveInTheManyWaysInWhichPeopleWriteThem) {
    const std::pair<const char*, const char*> lines[] = {
        {"홍길동\t010-1234-5678\t부장", "홍길동/01012345678/부장"},
        {"010.1234.5678\t홍길동", "홍길동/01012345678/"},
        {"홍길동,\"010 1234 5678\",\"(주)길동, 부장\"", "홍길동/01012345678/(주)길동, 부장"},
        {"\"홍 \"\"길동\"\"\"; 02-555-1234", "홍 \"길동\"/025551234/"},
        {"홍길동 부장 01012345678", "홍길동/01012345678/부장"},
        {"홍길동 : (02) 555-1234", "홍길동/025551234/"},
        {"홍길동(010-1234-5678)", "홍길동/01012345678/"},
        {"3. 홍길동2 010 1234 5678", "홍길동2/01012345678/"},
        {"이름: 홍길동 연락처: 010-1234-5678", "홍길동/01012345678/"},
        {"2026-11-23 홍길동 010-1234-5678 02-555-1234", "홍길동/01012345678+025551234/"},
        {"홍길동\t02-555-1234\t010-1234-5678\t부장", "홍길동/025551234+01012345678/부장"},
        {"+82 10-1234-5678 홍길동", "홍길동/01012345678/"},
        {"홍길동,+82 (0)10-1234-5678", "홍길동/01012345678/"},
        {"홍길동\t821012345678", "홍길동/01012345678/"},
        {"홍길동\t0082-2-555-1234", "홍길동/025551234/"},
        {"홍길동\t1012345678", "홍길동/01012345678/"},
        {"홍길동\t158812345", "홍길동/158812345/"},
        {"고객센터 1588-0000", "고객센터/15880000/"},
        {"01012345678", "/01012345678/"},
        {" \t ", "-"},
        {"홍길동", "?"},
        {"홍길동\t2026-11-23", "?"},
        {"안녕하세요, 홍길동입니다", "?"},
        {"회사,이름,휴대폰,직책\n길동상사,홍길동,010-1234-5678,부장\n길동상사,,010-1111-2222",
         "- | 홍길동/01012345678/부장 | /01011112222/"},
        {"홍길동, 대표, Hotel\n김길동, 010-1234-5678", "? | 김길동/01012345678/"},
        {"길동휴대폰;Hana Surname\n김길동;010-1234-5678", "? | 김길동/01012345678/"},
        {"No.;고객 이름;연락처 1;*휴대폰 번호(필수)\n1;홍길동;;1012345678", "- | 홍길동/01012345678/"},
        {"홍길동 Hotel 010-1234-5678", "홍길동/01012345678/Hotel"},
        {"번호\t성함\n010-1234-5678\t홍길동", "- | 홍길동/01012345678/"},
    };
    for (const auto& [line, person] : lines) EXPECT_EQ(read(line), person) << line;
}

TEST(PeopleLines, OfSeveralNumbersTheLikeliestComesFirstAndNoOtherFigureIsTakenForOne) {
    const std::pair<const char*, const char*> lines[] = {
        {"길동상사\t110-81-12345\t홍길동\t010-1234-5678", "길동상사/01012345678/홍길동"},
        {"홍길동 110-81-12345 010-1234-5678", "홍길동/01012345678/"},
        {"길동상사\t1588-0000\t010-1234-5678", "길동상사/01012345678+15880000/"},
        {"홍길동\t19801231\t1012345678", "홍길동/01012345678/"},
        {"사업자번호,이름,휴대폰(필수)\n110-81-12345,홍길동,1012345678\n110-81-12345,김길동,",
         "- | 홍길동/01012345678/ | ?"},
        {"이름,은행계좌,비고,담당자 휴대폰번호\n홍길동,012-345678-901,02-555-1234,1012345678\n"
         "김길동,012-345678-901,02-555-1234,",
         "- | 홍길동/01012345678+025551234/ | 김길동/025551234/"},
    };
    for (const auto& [line, person] : lines) EXPECT_EQ(read(line), person) << line;
}

TEST(PeopleLines, AFileIsReadInTheEncodingThatItHas) {
    const Text text = u"홍길동\t010-1234-5678\n";
    std::string little, big;
    for (const char16_t c : text) {
        const char low = static_cast<char>(c & 0xFF), high = static_cast<char>(c >> 8);
        little += {low, high};
        big += {high, low};
    }
    const std::pair<const char*, std::string> files[] = {{"UTF-8", to_utf8(text)},
                                                         {"with its mark", "\xEF\xBB\xBF" + to_utf8(text)},
                                                         {"UTF-16", little},
                                                         {"with its mark", "\xFF\xFE" + little},
                                                         {"the other way round", "\xFE\xFF" + big},
                                                         {"and without a mark", big},
                                                         {"code page 949", encode_cp949(text)}};
    for (const auto& [name, bytes] : files) EXPECT_EQ(utf8(text_of_any_encoding(bytes)), utf8(text)) << name;
}

}  // namespace
