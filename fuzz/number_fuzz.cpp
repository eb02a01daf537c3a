#include "fuzz/check.h"
#include "platform/text/format.h"
#include "platform/text/number.h"

#include <chrono>
#include <cmath>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace platform;
    const Text ascii(data, data + size), wide = fuzz::as_text(data, size);

    const double number = leading_number(ascii);
    fuzz::check(std::isfinite(number), "a text's number is finite");
    if (const auto whole_text = text_as_number(ascii); whole_text && !contains(ascii, u",")) {
        fuzz::check(*whole_text == number, "a text that is a number begins with it");
    }

    const Text digits = format_number(number, u"0");
    fuzz::check(digits.find_first_not_of(u"-0123456789") == Text::npos, "a whole number is digits");
    fuzz::check(remove_all(format_number(number, u"#,##0"), u",") == digits, "commas change no digit");
    if (std::fabs(number) < 1e15) {
        fuzz::check(std::fabs(static_cast<double>(round_half_even(number)) - leading_number(digits)) <= 1,
                    "both ways of rounding agree to one");
    }

    fuzz::check(text_as_number(wide) || format_service_number(wide) == wide,
                "what is no number stays as it is");
    format_number(number, wide);
    const LocalTime moment =
        make_time(2000, 1, 1) + std::chrono::seconds(round_half_even(std::fmod(number, 1e11)));
    const CalendarTime time = break_up(moment);
    fuzz::check(make_time(time.year, time.month, time.day, time.hour, time.minute, time.second) == moment,
                "a moment taken apart can be put together");
    format_date(moment, wide);
    format_date(moment, ascii);
    fuzz::check(format_day_fraction(number, u"hh:nn:ss").size() == 8,
                "elapsed times have two digits a field");
    return 0;
}
