#include "send/report.h"

#include "platform/text/format.h"

namespace send {

using platform::Text;

namespace {

Text cases(int number) { return platform::format_number(number, u"#,##0") + u"건\r\n"; }

/// Deliberately a difference of clock times, wrong for a job that passes midnight: the report shows the time
/// as it always has.
Text elapsed(platform::LocalTime started, platform::LocalTime now) {
    const std::chrono::duration<double, std::chrono::days::period> days =
        platform::time_of_day(now) - platform::time_of_day(started);
    return platform::format_day_fraction(days.count(), u"hh:nn:ss");
}

}  // namespace

Text report_text(const SendJob& job, int recipients, platform::LocalTime now) {
    // Deliberately "complete" even when all have failed; the lines below say how it went.
    return u" KT 폰디라 서버에 메시지 등록이 완료되었습니다.\r\n\r\n 등록대상: " + cases(recipients) +
           u" 등록성공: " + cases(job.success) + u" 등록실패: " + cases(job.failure) + u" 등록중지: " +
           cases(recipients - job.success - job.failure) + u"\r\n 걸린시간: " + elapsed(job.started, now);
}

}  // namespace send
