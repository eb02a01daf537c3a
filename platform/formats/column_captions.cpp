#include "platform/formats/column_captions.h"

#include <algorithm>
#include <array>

namespace platform {

namespace {

constexpr std::array<TextView, 6> NAMES = {u"이름", u"성명", u"성함", u"받는사람", u"수신자", u"name"};
constexpr std::array<TextView, 5> TITLES = {u"직위", u"직책", u"직급", u"title", u"position"};
constexpr std::array<TextView, 14> TELEPHONES = {u"전화",   u"휴대전화", u"휴대폰", u"핸드폰", u"폰",
                                                 u"연락처", u"모바일",   u"팩스",   u"phone",  u"telephone",
                                                 u"tel",    u"hp",       u"mobile", u"fax"};
constexpr std::array<TextView, 3> WORDS_FOR_NUMBER = {u"번호", u"number", u"no"};
/// Telephones only in front of one of these words: "대표" alone is a person's title.
constexpr std::array<TextView, 9> TELEPHONES_BEFORE_NUMBER = {
    u"휴대", u"받는사람", u"받는", u"수신자", u"수신", u"안심", u"직통", u"대표", u"문자"};
constexpr std::array<TextView, 6> OTHER_NUMBERS = {u"계좌", u"사번", u"학번", u"코드", u"사업자", u"code"};

/// How much of a text a word has to be.
enum class Match { whole, end };

template <std::size_t N>
bool matches_one_of(TextView text, const std::array<TextView, N>& words, Match match) {
    return std::ranges::any_of(words, [&](TextView word) {
        return text.ends_with(word) && (match == Match::end || text.size() == word.size());
    });
}

/// The letters of a caption alone: people write "휴대폰 1", "*휴대폰" and "휴대폰(필수)".
Text letters_of(TextView caption) {
    Text letters;
    for (const char16_t c : lower_case(caption.substr(0, caption.find(u'(')))) {
        if (c > 0x7F || (c >= u'a' && c <= u'z')) letters += c;
    }
    return letters;
}

TextView without_word_for_number(TextView letters) {
    for (const TextView word : WORDS_FOR_NUMBER) {
        if (letters.ends_with(word)) return letters.substr(0, letters.size() - word.size());
    }
    return letters;
}

bool is_telephone(TextView letters, Match match) {
    const TextView what = without_word_for_number(letters);
    if (matches_one_of(what, TELEPHONES, match)) return true;
    const bool number = what.size() < letters.size();
    return number && (what.empty() || matches_one_of(what, TELEPHONES_BEFORE_NUMBER, match));
}

}  // namespace

Column column_under(TextView caption) {
    const Text letters = letters_of(caption);
    if (matches_one_of(letters, NAMES, Match::end)) return Column::name;
    if (matches_one_of(letters, TITLES, Match::end)) return Column::title;
    if (is_telephone(letters, Match::end)) return Column::telephone;
    const bool other = matches_one_of(letters, WORDS_FOR_NUMBER, Match::end) ||
                       matches_one_of(letters, OTHER_NUMBERS, Match::end);
    return other ? Column::other_number : Column::unknown;
}

bool is_caption(TextView text) {
    const Text letters = letters_of(text);
    return matches_one_of(letters, NAMES, Match::whole) || is_telephone(letters, Match::whole);
}

}  // namespace platform
