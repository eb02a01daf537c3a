#include "platform/file_name.h"

#include "platform/error.h"
#include "platform/text/wild_cards.h"

#include <algorithm>
#include <utility>

namespace platform {

namespace {

/// In UTF-8, whose bytes Linux file systems count.
constexpr std::size_t MOST_BYTES = 255;

char16_t upper_case_unit(char16_t unit) {
    return unit >= u'a' && unit <= u'z' ? static_cast<char16_t>(unit - u'a' + u'A') : unit;
}

/// Names that mean a device on other systems, with any extension.
bool is_device(TextView name) {
    Text stem = lower_case(right_trim(name.substr(0, name.find(u'.'))));
    for (const TextView device : {u"con", u"prn", u"aux", u"nul"}) {
        if (stem == device) return true;
    }
    if (stem.size() != 4 || stem[3] < u'1' || stem[3] > u'9') return false;
    stem.pop_back();
    return stem == u"com" || stem == u"lpt";
}

bool is_forbidden(char16_t unit) { return unit < u' ' || FORBIDDEN_IN_NAMES.find(unit) != TextView::npos; }

/// Control characters, and characters that reverse the direction of a text or have no width.
bool is_invisible(char16_t unit) {
    constexpr std::pair<char16_t, char16_t> RANGES[] = {{0x7F, 0x9F},     {0xAD, 0xAD},     {0x200B, 0x200F},
                                                        {0x2028, 0x202E}, {0x2060, 0x206F}, {0xFEFF, 0xFEFF}};
    return std::any_of(std::begin(RANGES), std::end(RANGES),
                       [&](const auto& range) { return unit >= range.first && unit <= range.second; });
}

[[noreturn]] void refuse(Text why) { throw RuntimeError(ErrorNumber::bad_file_name, std::move(why)); }

}  // namespace

void check_file_name(TextView name) {
    if (name.empty()) throw RuntimeError(ErrorNumber::bad_file_name);
    if (std::any_of(name.begin(), name.end(), is_forbidden))
        refuse(u"이름에 다음 문자는 사용할 수 없습니다.\r\n\\ / : * ? \" < > |");
    if (name.front() == u'.') refuse(u"이름은 마침표로 시작할 수 없습니다.");
    if (name.back() == u'.' || name.back() == u' ') refuse(u"이름은 마침표나 빈칸으로 끝날 수 없습니다.");
    if (is_device(name)) refuse(u"시스템에서 사용하는 이름이므로 사용할 수 없습니다.");
    if (to_utf8(name).size() > MOST_BYTES) refuse(u"이름이 너무 깁니다. 더 짧은 이름을 입력하세요.");
}

Text clean_file_name(TextView proposal) {
    constexpr std::size_t LONGEST = 70;
    proposal.remove_prefix(proposal.find_last_of(u"\\/") + 1);
    Text name;
    for (const char16_t unit : proposal) {
        if (!is_forbidden(unit) && !is_invisible(unit)) name.push_back(unit);
    }
    name.erase(0, name.find_first_not_of(u". "));
    while (name.ends_with(u'.') || name.ends_with(u' ')) name.pop_back();
    if (name.size() > LONGEST) {
        const std::size_t ending = std::max(name.rfind(u'.') + 1, name.size() - 8) - 1;
        name.erase(LONGEST - (name.size() - ending), name.size() - LONGEST);
    }
    return is_device(name) ? u"_" + name : name;
}

bool matches_pattern(TextView name, TextView pattern) {
    if (pattern == u"*.*") return true;
    return matches_wild_cards(
        name, pattern, [](char16_t element) { return element == u'*'; },
        [](char16_t element, char16_t unit) {
            return element == u'?' || upper_case_unit(element) == upper_case_unit(unit);
        });
}

bool name_precedes(TextView a, TextView b) {
    const auto [in_a, in_b] =
        std::mismatch(a.begin(), a.end(), b.begin(), b.end(),
                      [](char16_t x, char16_t y) { return upper_case_unit(x) == upper_case_unit(y); });
    if (in_a == a.end() && in_b == b.end()) return a < b;
    if (in_a == a.end() || in_b == b.end()) return in_a == a.end();
    return upper_case_unit(*in_a) < upper_case_unit(*in_b);
}

}  // namespace platform
