#include "send/confirmation.h"

#include "core/byte_length.h"
#include "core/centring.h"
#include "platform/text/format.h"

namespace send {

using platform::CRLF;
using platform::Text;

namespace {

// The blanks in the labels align the colons.

Text kind_line(const compose::frmZent& form, const compose::CarrierKind& kind) {
    const bool is_long = kind.content == compose::Content::text &&
                         core::BYTE_LEN(form.text.mText1.text()) > compose::TEXT_LIMIT;
    return u" 메시지구분   : " + Text(kind.name) + (is_long ? u"(장문)" : u"");
}

Text schedule_line(const compose::frmZent& form) {
    if (form.schedule.Option1.chosen()) return u" 발송예약시간: 즉시전송";
    return u" 발송예약시간: 예약전송(" +
           platform::format_date(form.schedule.DTP1.value(), u"yyyy년 M월 d일") + u" " +
           form.schedule.Combo1.text() + u"시" + form.schedule.Combo2.text() + u"분)";
}

/// Deliberately asks `Check1`, though the job asks `Check2` about replies: users know these lines as they
/// are.
Text reply_lines(const compose::frmZent& form) {
    if (!form.text.Check1.checked()) return u" 답변받기      : 아니오";
    return u" 답변받기      : 예" + Text(CRLF) + u" 답변개수      : " + form.reply.Combo4.text();
}

Text when_in_words(const compose::SchedulePanel& schedule) {
    if (schedule.Option1.chosen()) return u"바로 발송";
    const platform::LocalTime date = schedule.DTP1.value();
    return platform::format_date(date, u"M월 d일 ") + platform::weekday(date) + u" " +
           schedule.Combo1.text() + u":" + schedule.Combo2.text() + u" 예약";
}

Text recipients_line(const Recipients& recipients) {
    Text line = u" 발송대상      : " + recipients.first_name + u"(" + recipients.first_number + u")";
    if (recipients.count > 1) line += u"외 " + platform::decimal(recipients.count - 1) + u"건";
    return line;
}

}  // namespace

Text confirmation_text(const compose::frmZent& form, const compose::CarrierKind& kind,
                       const Recipients& recipients) {
    Text text;
    const auto add_line = [&text](const Text& line) { text.append(line).append(CRLF); };
    add_line(u" 메시지제목   : " + form.subject.subjectText.text());
    add_line(kind_line(form, kind));
    add_line(schedule_line(form));
    if (kind.callback) add_line(u" 회신번호      : " + form.sender.txtCallback.text());
    if (kind.reply) add_line(reply_lines(form));
    return text + recipients_line(recipients);
}

frmSBox::frmSBox(platform::Platform& platform, core::AppState& state)
    : Form(platform.desktop, u"frmSBox"), state_(state) {
    set_caption(u"메시지 발송확인");
    Command1.Click.connect([this] { answer(true); });
    Command2.Click.connect([this] { cancel(); });
}

void frmSBox::Form_Load() { core::CENTER_FORM(desktop(), *this); }

void frmSBox::show_draft(const compose::frmZent& form, const Text& text, int recipients,
                         const Forecast& forecast) {
    Text1.set_text(Text(CRLF) + text);
    Preview.set_text(forecast.content);
    People.set_caption(platform::decimal(recipients) + u"명");
    When.set_caption(when_in_words(form.schedule));
    Amount.set_caption(amount_in_words(forecast));
    Nameless.set_caption(u"이름이 없는 " + platform::decimal(forecast.nameless) +
                         u"명에게는 발송되지 않습니다.");
    Nameless.set_visible(forecast.nameless > 0);
    Lost.set_caption(u"보낼 수 없는 글자 " + platform::decimal(forecast.lost_characters) +
                     u"개는 ?로 나갑니다.");
    Lost.set_visible(forecast.lost_characters > 0);
    TakeOut.set_visible(forecast.lost_characters > 0);
}

void frmSBox::answer(bool start) {
    state_.forms.gDialogConfirmed = start;
    unload();
}

}  // namespace send
