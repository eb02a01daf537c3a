#pragma once

#include "platform/text/calendar.h"
#include "platform/text/text.h"

namespace platform {

/// A number by a pattern of one run of `0`, `#` and `,` with fixed text around it, as "#,##0", "00" or
/// "###,##0KB": rounded to a whole number, halves away from zero; as many digits as there are zeros at least;
/// a comma between placeholders asks for commas between thousands. Beyond 15 digits a number shows zeros.
Text format_number(double number, TextView pattern);

/// A number with its unit, as one counts things: "1,234명".
Text counted(std::size_t number, TextView unit);

/// The layout "0000-####-####" of a service number: digits fill it from the right, the first group is padded
/// with zeros and grows when there are more. A `#` place without a digit stays empty though the hyphens stay,
/// so that a short number is not mistaken for one with zeros: 5 gives "0000--5". A text that is no number,
/// such as a placeholder with letters, is returned unchanged.
Text format_service_number(TextView value);

/// A moment by a pattern of the fields yyyy, M, MM, d, dd, h, hh (24 hours, or 12 hours where the pattern has
/// ampm), n, nn, s, ss and ampm ("오전" or "오후"), in any case; m and mm after a field of hours are minutes.
/// Every other character stands for itself. The pattern "long Time" is the locale's: "오후 1:04:05".
Text format_date(LocalTime time, TextView pattern);

/// The day of the week: "월요일".
Text weekday(LocalTime time);

/// An elapsed time in days, shown as a clock time: only its fraction of a day, without its sign, to the
/// nearest second. Whole days are lost.
Text format_day_fraction(double days, TextView pattern);

}  // namespace platform
