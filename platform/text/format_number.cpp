#include "platform/text/format.h"
#include "platform/text/number.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string>

namespace platform {

namespace {

/// The whole number nearest to a number of at most 15 significant digits, in decimal digits without leading
/// zeros, so none at all for 0.
struct WholeNumber {
    bool negative = false;
    std::string digits;
};

constexpr int DIGITS_THAT_COUNT = 15;

/// Adds one to a number in decimal digits.
void increment(std::string& digits) {
    for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit) {
        if (*digit != '9') {
            ++*digit;
            return;
        }
        *digit = '0';
    }
    digits.insert(digits.begin(), '1');
}

WholeNumber round_to_whole(double number) {
    WholeNumber whole;
    if (!std::isfinite(number) || number == 0) return whole;

    // "d.dddddddddddddde+xx": the significant digits, and where their decimal point belongs.
    std::array<char, 32> spelling{};
    const auto end = std::to_chars(spelling.data(), spelling.data() + spelling.size(), std::fabs(number),
                                   std::chars_format::scientific, DIGITS_THAT_COUNT - 1);
    const std::string scientific(spelling.data(), end.ptr);
    std::string digits = scientific.substr(0, 1) + scientific.substr(2, DIGITS_THAT_COUNT - 1);
    const int places = std::stoi(scientific.substr(scientific.find('e') + 1)) + 1;

    if (places >= DIGITS_THAT_COUNT) {
        digits.append(static_cast<std::size_t>(places - DIGITS_THAT_COUNT), '0');
        whole.digits = digits;
    } else if (places >= 0) {
        const auto kept = static_cast<std::size_t>(places);
        whole.digits = digits.substr(0, kept);
        if (digits[kept] >= '5') increment(whole.digits);
    }
    whole.negative = number < 0 && !whole.digits.empty();
    return whole;
}

Text with_thousands(const std::string& digits) {
    Text out;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (i > 0 && (digits.size() - i) % 3 == 0) out += u',';
        out += static_cast<char16_t>(digits[i]);
    }
    return out;
}

}  // namespace

Text format_number(double number, TextView pattern) {
    constexpr TextView PLACES = u"0#,";
    const std::size_t begin = std::min(pattern.find_first_of(PLACES), pattern.size());
    const std::size_t end = std::min(pattern.find_first_not_of(PLACES, begin), pattern.size());
    const TextView places = pattern.substr(begin, end - begin);
    const auto zeros = static_cast<std::size_t>(std::count(places.begin(), places.end(), u'0'));

    WholeNumber whole = round_to_whole(number);
    if (whole.digits.size() < zeros) whole.digits.insert(0, zeros - whole.digits.size(), '0');

    Text out;
    if (whole.negative) out += u'-';
    out += pattern.substr(0, begin);
    out += contains(places, u",") ? with_thousands(whole.digits) : from_ascii(whole.digits);
    return out += pattern.substr(end);
}

Text counted(std::size_t number, TextView unit) {
    return format_number(static_cast<double>(number), u"#,##0") + Text(unit);
}

Text format_service_number(TextView value) {
    constexpr std::size_t GROUP = 4;
    const auto number = text_as_number(value);
    if (!number) return Text(value);

    const WholeNumber whole = round_to_whole(*number);
    std::string rest = whole.digits;
    const auto take_group = [&] {
        const std::size_t begin = rest.size() - std::min(rest.size(), GROUP);
        std::string group = rest.substr(begin);
        rest.resize(begin);
        return group;
    };
    const std::string last = take_group();
    const std::string middle = take_group();
    const std::string padding(GROUP - std::min(rest.size(), GROUP), '0');
    return from_ascii((whole.negative ? "-" : "") + padding + rest + "-" + middle + "-" + last);
}

}  // namespace platform
