#pragma once

#include "platform/text/text.h"

#include <optional>

namespace platform {

/// One of the ten that a number is written with; no digit of another script.
constexpr bool is_digit(char16_t unit) { return unit >= u'0' && unit <= u'9'; }

/// The number that the text begins with; 0 when there is none. Blanks, tabs and line ends before it are
/// skipped; it may have a sign, decimals and an exponent. A number that is too large gives the largest
/// double, one that is too small gives 0; the result is always finite.
double leading_number(TextView text);

/// The number of a text that is a number from end to end, blanks around it and commas between its digits
/// allowed; nothing for any other text and for a number beyond the largest double.
std::optional<double> text_as_number(TextView text);

/// Whether a setting is on: its number is 1, so "1", "1.0" and "1abc" are on.
bool is_on(TextView text);

/// The nearest whole number, the even one of two equally near; the nearest long for a number beyond its
/// range.
long round_half_even(double number);

}  // namespace platform
