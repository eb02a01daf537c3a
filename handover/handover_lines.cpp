#include "handover/handover_lines.h"

#include "compose/main_form.h"
#include "core/phone_number.h"
#include "platform/text/cp949.h"
#include "platform/text/number.h"

#include <cmath>
#include <limits>
#include <vector>

namespace handover {

using platform::Text;
using platform::TextView;

namespace {

/// A line of up to this many characters holds no recipient.
constexpr std::size_t SHORT_LINE = 8;

enum Field { NAME = 1, NUMBER = 2, TITLE = 3 };

}  // namespace

Text handed_over_text(std::string_view bytes) {
    return platform::with_line_feeds(platform::blanks_for_nul(platform::decode_cp949(bytes)));
}

int value_of_signal(TextView signal) {
    const double value = std::nearbyint(platform::leading_number(signal));
    using Limits = std::numeric_limits<std::int16_t>;
    const bool fits = value >= Limits::min() && value <= Limits::max();
    return fits && value != 0 ? static_cast<int>(value) : 1;
}

bool HandedOverRecipient::read(TextView line) {
    if (line.size() <= SHORT_LINE) return false;
    const std::vector<TextView> fields = platform::split(line, u'\t');
    if (fields.size() > NAME) name = platform::trim(core::without_separators(fields[NAME]));
    if (name.empty()) name = compose::NO_NAME;
    if (fields.size() > NUMBER) number = platform::trim(core::DIGITS_ONLY(fields[NUMBER]));
    // Deliberately the rule for numbers: a title that holds digits has always kept only these.
    if (fields.size() > TITLE) title = core::DIGITS_ONLY(fields[TITLE]);
    return true;
}

}  // namespace handover
