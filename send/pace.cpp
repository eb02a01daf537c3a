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

Text people(int count) { return platform::counted(static_cast<std::size_t>(count), u"명"); }

Text about(milliseconds time) {
    const auto seconds = std::max<long long>(std::chrono::ceil<std::chrono::seconds>(time).count(), 1);
    if (seconds < 60) return u"약 " + platform::decimal(seconds) + u"초";
    const auto minutes = (seconds + 30) / 60;
    if (minutes < 60) return u"약 " + platform::decimal(minutes) + u"분";
    Text words = u"약 " + platform::decimal(minutes / 60) + u"시간";
    if (minutes % 60 != 0) words += u" " + platform::decimal(minutes % 60) + u"분";
    return words;
}

}  // namespace send
