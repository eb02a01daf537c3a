#include "platform/text/number.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>
#include <system_error>

namespace platform {

namespace {

/// The characters of a number at the beginning of a text, in the spelling that std::from_chars reads.
struct Spelling {
    std::string characters;
    bool negative = false;
    std::size_t length = 0;  // in the text, 0 without a number
};

Spelling spell(TextView text) {
    Spelling number;
    std::size_t at = 0;
    if (at < text.size() && (text[at] == u'+' || text[at] == u'-')) number.negative = text[at++] == u'-';

    const auto take_digits = [&] {
        const std::size_t begin = at;
        while (at < text.size() && is_digit(text[at])) number.characters += static_cast<char>(text[at++]);
        return at - begin;
    };
    std::size_t digits = take_digits();
    if (at < text.size() && text[at] == u'.') {
        number.characters += '.';
        ++at;
        digits += take_digits();
    }
    if (digits == 0) return {};
    number.length = at;

    // Only an exponent with digits belongs to the number: "5e" and "5 eggs" are fives.
    if (at < text.size() && (text[at] == u'e' || text[at] == u'E')) {
        const std::size_t mantissa_size = number.characters.size();
        number.characters += 'e';
        ++at;
        if (at < text.size() && (text[at] == u'+' || text[at] == u'-')) {
            if (text[at] == u'-') number.characters += '-';
            ++at;
        }
        if (take_digits() > 0) {
            number.length = at;
        } else {
            number.characters.resize(mantissa_size);
        }
    }
    return number;
}

/// Whether a number that no double holds is too large rather than too small. Its first significant digit
/// stands about where the exponent says, and no text is long enough to outweigh an exponent that cannot be
/// read.
bool is_too_large(const std::string& characters) {
    const std::size_t e = characters.find('e');
    const std::string mantissa = characters.substr(0, e);
    const auto point = static_cast<double>(std::min(mantissa.find('.'), mantissa.size()));
    const auto first = static_cast<double>(mantissa.find_first_of("123456789"));
    if (e == std::string::npos) return first < point;

    long long exponent = 0;
    const auto read =
        std::from_chars(characters.data() + e + 1, characters.data() + characters.size(), exponent);
    if (read.ec == std::errc::result_out_of_range) return characters[e + 1] != '-';
    return point - first + static_cast<double>(exponent) > 0;
}

double value(const Spelling& number) {
    double magnitude = 0;
    const char* begin = number.characters.data();
    const auto read = std::from_chars(begin, begin + number.characters.size(), magnitude);
    if (read.ec == std::errc::result_out_of_range) {
        magnitude = is_too_large(number.characters) ? std::numeric_limits<double>::infinity() : 0;
    }
    return number.negative ? -magnitude : magnitude;
}

}  // namespace

double leading_number(TextView text) {
    const std::size_t first = text.find_first_not_of(u" \t\r\n");
    if (first == TextView::npos) return 0;
    const Spelling number = spell(text.substr(first));
    constexpr double LARGEST = std::numeric_limits<double>::max();
    return number.length == 0 ? 0 : std::clamp(value(number), -LARGEST, LARGEST);
}

std::optional<double> text_as_number(TextView text) {
    Text digits = trim(text);
    const std::size_t first_comma = digits.find(u',');
    const std::size_t first_digit = digits.find_first_of(u"0123456789");
    if (first_comma < first_digit) return std::nullopt;
    std::erase(digits, u',');
    const Spelling number = spell(digits);
    if (number.length == 0 || number.length != digits.size()) return std::nullopt;
    const double result = value(number);
    return std::isfinite(result) ? std::optional(result) : std::nullopt;
}

bool is_on(TextView text) { return leading_number(text) == 1; }

long round_half_even(double number) {
    if (std::isnan(number)) return 0;
    constexpr auto SMALLEST = std::numeric_limits<long>::min(), LARGEST = std::numeric_limits<long>::max();
    if (number <= static_cast<double>(SMALLEST)) return SMALLEST;
    if (number >= static_cast<double>(LARGEST)) return LARGEST;

    const double below = std::floor(number);
    const auto whole = static_cast<long>(below);
    const double rest = number - below;
    const bool up = rest > 0.5 || (rest == 0.5 && whole % 2 != 0);
    return up ? whole + 1 : whole;
}

}  // namespace platform
