#include "send/report.h"

#include "core/centring.h"
#include "platform/text/format.h"
#include "service/service_pages.h"

namespace send {

using platform::Text;

namespace {

Text cases(int number) { return platform::format_number(number, u"#,##0") + u"건\r\n"; }

/// Deliberately a difference of clock times, wrong for a job that passes midnight: users know the report so.
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

Outcome outcome_of(const SendJob& job, int recipients) {
    const auto unless_none = [](int count, const Text& text) { return count > 0 ? text : Text(); };
    const int stopped = recipients - job.success - job.failure - job.unconfirmed;
    return {.registered = job.success == recipients
                              ? people(recipients) + u" 모두 등록했습니다."
                              : people(recipients) + u" 중 " + people(job.success) + u"을 등록했습니다.",
            .failed = unless_none(job.failure,
                                  u"⚠ 실패 " + people(job.failure) + u": 목록에 선택된 채로 남아 있습니다."),
            .stopped = unless_none(
                stopped, u"등록하지 않은 " + people(stopped) + u": 목록에 선택된 채로 남아 있습니다."),
            .unconfirmed = unless_none(job.unconfirmed, u"⚠ 확인필요 " + people(job.unconfirmed) +
                                                            u": 발송결과에서 확인하여 주십시오.")};
}

Text in_lines(const Outcome& outcome) {
    Text lines = outcome.registered;
    for (const Text& line : {outcome.failed, outcome.unconfirmed}) {
        if (!line.empty()) lines += u"\n" + line;
    }
    return lines;
}

frmSendEndBox::frmSendEndBox(platform::Platform& platform, compose::frmZent& main_form)
    : Form(platform.desktop, u"frmSendEndBox"), main_form_(main_form) {
    set_caption(u"KT 폰디라 서버에 메시지 등록완료...");
    Command1.set_enabled(false);
    Command1.Click.connect([this] { main_form_.session.KTSMS_LINK(service::PAGE_RESULTS); });
    Command2.Click.connect([this] { unload(); });
}

void frmSendEndBox::show_outcome(const Outcome& outcome) {
    const auto show = [](platform::Label& label, const Text& text) {
        label.set_caption(text);
        label.set_visible(!text.empty());
    };
    show(Registered, outcome.registered);
    show(Failed, outcome.failed);
    show(Stopped, outcome.stopped);
    show(Unconfirmed, outcome.unconfirmed);
}

void frmSendEndBox::Form_Load() { core::CENTER_FORM(desktop(), *this); }

}  // namespace send
