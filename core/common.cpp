#include "core/common.h"

#include "platform/text/cp949.h"
#include "platform/text/number.h"

#include <algorithm>
#include <array>

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

/// The digits of a number that is one at all; empty otherwise.
Text usable_digits(TextView number) {
    Text digits = platform::trim(DIGITS_ONLY(platform::trim(number)));
    if (platform::leading_number(digits) == 0 || digits.size() < 3) digits.clear();
    return digits;
}

/// The types whose texts are padded with blanks. Deliberately not those that the card database has: a name
/// with blanks at its end keeps them in every list.
constexpr int PADDED_TYPES[] = {10, 12};

}  // namespace

std::size_t BYTE_LEN(TextView text) { return platform::cp949_length(text); }

Text DIGITS_ONLY(TextView value) {
    const Text trimmed = platform::trim(value);
    Text digits;
    std::ranges::copy_if(trimmed, std::back_inserter(digits),
                         [](char16_t c) { return c >= u'0' && c <= u'9'; });
    return platform::leading_number(digits) != 0 ? digits : trimmed;
}

Text CLEAN_FIXED_TEXT(TextView text) { return platform::right_trim(platform::blanks_for_nul(Text(text))); }

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

Text FIELD_VALUE(platform::CardField field) {
    if (const auto* number = std::get_if<std::int32_t>(&field.value)) return platform::decimal(*number);
    auto* text = std::get_if<Text>(&field.value);
    if (text == nullptr) return Text();
    return std::ranges::count(PADDED_TYPES, field.type) > 0 ? platform::right_trim(*text) : std::move(*text);
}

}  // namespace core
