#include "core/phone_number.h"

#include "platform/text/number.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace core {

using platform::Text;
using platform::TextView;

namespace {

constexpr std::array<TextView, 15> AREA_CODES = {u"031", u"032", u"033", u"041", u"042",
                                                 u"043", u"051", u"052", u"053", u"054",
                                                 u"055", u"061", u"062", u"063", u"064"};
constexpr std::array<TextView, 7> MOBILE_CODES = {u"010", u"011", u"012", u"016", u"017", u"018", u"019"};

template <std::size_t N>
bool begins_with_one_of(const Text& number, const std::array<TextView, N>& codes) {
    return std::ranges::any_of(codes, [&](TextView code) { return number.starts_with(code); });
}

/// The digits when they can be dialled at all: three or more that do not make 0. Empty otherwise.
Text usable_digits(TextView number) {
    Text digits = platform::trim(DIGITS_ONLY(platform::trim(number)));
    if (platform::leading_number(digits) == 0 || digits.size() < 3) digits.clear();
    return digits;
}

constexpr std::size_t SUBSCRIBER_LENGTH = 4;

/// The digits before the exchange's; 0 for a number that begins with its exchange, as 1588-0000 does.
std::size_t prefix_length(TextView number) {
    if (!number.starts_with(u'0')) return 0;
    if (number.starts_with(u"02")) return 2;
    return number.starts_with(u"050") || number.starts_with(u"030") ? 4 : 3;
}

}  // namespace

Text DIGITS_ONLY(TextView value) {
    const Text trimmed = platform::trim(value);
    Text digits;
    std::ranges::copy_if(trimmed, std::back_inserter(digits), platform::is_digit);
    return platform::leading_number(digits) != 0 ? digits : trimmed;
}

Text with_hyphens(TextView number) {
    Text shown(number);
    const std::size_t prefix = prefix_length(number);
    const std::size_t rest = number.size() - std::min(prefix, number.size());
    const bool whole = prefix == 0 ? rest == 8 && number.starts_with(u'1') : rest == 7 || rest == 8;
    const bool all_digits = std::ranges::all_of(number, platform::is_digit);
    if (!whole || !all_digits) return shown;
    shown.insert(shown.size() - SUBSCRIBER_LENGTH, 1, u'-');
    if (prefix > 0) shown.insert(prefix, 1, u'-');
    return shown;
}

bool TEXT_NUMBER_OK(TextView number) {
    const Text digits = usable_digits(number);
    return !digits.empty() && !digits.starts_with(u"02") && !begins_with_one_of(digits, AREA_CODES);
}

bool FAX_NUMBER_OK(TextView number) {
    const Text digits = usable_digits(number);
    if (digits.empty() || begins_with_one_of(digits, MOBILE_CODES)) return false;
    if (digits.size() < 6) return true;
    return !digits.starts_with(u"03030") && !digits.starts_with(u"0502") && !digits.starts_with(u"0505");
}

Text without_separators(TextView name) {
    return platform::remove_all(platform::remove_all(name, u":"), u";");
}

}  // namespace core
