#include "send/pace.h"

#include "platform/text/format.h"

#include <algorithm>

namespace send {

using platform::Text;
using std::chrono::milliseconds;

milliseconds time_left(Steps steps, milliseconds elapsed, milliseconds waits) {
    const milliseconds step = steps.done == 0 ? waits : std::max(waits, elapsed / steps.done);
    return step * std::max(steps.all - steps.done, 0);
}

Text people(int count) { return platform::format_number(count, u"#,##0명"); }

Text about(milliseconds time) {
    constexpr int SECONDS_BETWEEN = 5;
    const auto fives = (time.count() + SECONDS_BETWEEN * 1000 - 1) / (SECONDS_BETWEEN * 1000);
    if (const auto seconds = fives * SECONDS_BETWEEN; seconds < 60)
        return u"약 " + platform::decimal(seconds) + u"초";
    const auto minutes = std::chrono::ceil<std::chrono::minutes>(time).count();
    Text text = u"약";
    if (minutes >= 60) text += u" " + platform::decimal(minutes / 60) + u"시간";
    if (minutes % 60 != 0) text += u" " + platform::decimal(minutes % 60) + u"분";
    return text;
}

}  // namespace send
