#include "platform/formats/telephone_numbers.h"

#include "platform/text/number.h"

#include <algorithm>

namespace platform {

namespace {

constexpr TextView COUNTRY = u"82";
constexpr std::size_t SHORTEST = 9;
constexpr std::size_t LONGEST = 12;
/// With everything that is dialled before it from abroad. A line of digits alone must not be read again and
/// again.
constexpr std::size_t MOST_DIGITS = LONGEST + 4;
constexpr std::size_t SERVICE_LENGTH = 8;

bool is_between_digits(char16_t c) { return TextView(u" -.()\u2010\u2011\u2013").find(c) != TextView::npos; }

/// As it is dialled inside the country. Tables of other programs drop the 0 that a mobile number begins with.
Text dialled(Text digits, bool plus) {
    if (digits.starts_with(u"0082")) digits.erase(0, 2), plus = true;
    const bool abroad = digits.starts_with(COUNTRY) && (plus || digits.size() >= LONGEST - 1);
    if (abroad) digits.erase(0, COUNTRY.size());
    const bool mobile = (digits.size() == 9 || digits.size() == 10) && digits[0] == u'1' &&
                        TextView(u"016789").find(digits[1]) != TextView::npos;
    if ((abroad || mobile) && !digits.starts_with(u'0')) digits.insert(0, 1, u'0');
    return digits;
}

/// Dates of birth begin with 19, months with 10 to 12.
bool is_service(TextView digits) {
    return digits.size() == SERVICE_LENGTH && digits[0] == u'1' && digits[1] >= u'4' && digits[1] <= u'8';
}

bool is_number(TextView digits, bool alone) {
    if (is_service(digits)) return true;
    const bool fits = digits.size() >= SHORTEST && digits.size() <= LONGEST;
    // Among words, dates and sums have as many digits.
    return fits && (alone || digits.front() == u'0');
}

/// A run of digits and what stands between them.
struct Run {
    std::size_t end;
    Text digits;
    bool plus;
};

Run run_from(TextView text, std::size_t begin) {
    Run run{.end = begin, .digits = {}, .plus = text[begin] == u'+'};
    std::size_t at = run.plus ? begin + 1 : begin;
    for (bool blank = false; at < text.size() && run.digits.size() <= MOST_DIGITS; ++at) {
        if (is_digit(text[at])) {
            // A blank may stand in a number, but behind a whole one the next begins.
            if (blank && is_number(dialled(run.digits, run.plus), false)) break;
            run.digits += text[at];
            run.end = at + 1;
            blank = false;
        } else if (is_between_digits(text[at])) {
            blank = blank || text[at] == u' ';
        } else {
            break;
        }
    }
    if (run.end < text.size() && text[run.end] == u')' && !run.digits.empty()) ++run.end;
    return run;
}

Likelihood likelihood_of(const Run& run, TextView digits) {
    if (is_service(digits)) return Likelihood::service;
    const bool as_dialled = run.digits.starts_with(u'0') || (run.plus && run.digits.starts_with(COUNTRY));
    return as_dialled ? Likelihood::dialled : Likelihood::guessed;
}

/// Where the group of digits ends that begins there.
std::size_t end_of_group(TextView text, std::size_t begin) {
    while (begin < text.size() && is_digit(text[begin])) ++begin;
    return begin;
}

bool may_begin(TextView text, std::size_t at) {
    const bool sign = text[at] == u'+' || text[at] == u'(';
    if (sign) return at + 1 < text.size() && is_digit(text[at + 1]);
    const std::size_t group = end_of_group(text, at) - at;
    return group >= 2;
}

}  // namespace

Text take_numbers(TextView text, std::vector<TelephoneNumber>& numbers) {
    Text rest;
    const bool all_number = std::ranges::all_of(
        text, [](char16_t c) { return is_digit(c) || is_between_digits(c) || c == u'+'; });
    for (std::size_t at = 0; at < text.size();) {
        const bool begins = is_digit(text[at]) || text[at] == u'+' || text[at] == u'(';
        if (begins && may_begin(text, at)) {
            const Run run = run_from(text, at);
            Text digits = dialled(run.digits, run.plus);
            if (is_number(digits, all_number)) {
                const Likelihood likelihood = likelihood_of(run, digits);
                numbers.push_back({std::move(digits), likelihood});
                rest += u' ';
                at = run.end;
                continue;
            }
        }
        const std::size_t next = is_digit(text[at]) ? end_of_group(text, at) : at + 1;
        rest += text.substr(at, next - at);
        at = next;
    }
    return trim(rest);
}

}  // namespace platform
