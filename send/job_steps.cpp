// What the four routines share: preparation, the session around a submit, the rows' status, the end.

#include "core/app_state.h"
#include "core/boxes.h"
#include "core/busy.h"
#include "gateway/gateway.h"
#include "platform/error.h"
#include "send/draft.h"
#include "send/frmZentSend.h"
#include "send/pieces.h"
#include "send/report.h"

namespace send {

using compose::CarrierKind;
using compose::Pauses;
using platform::Text;

namespace {

/// Deliberately with its misspelt word: support knows the box so.
constexpr platform::TextView FAILURE_MESSAGE =
    u"메시지 등록을 실패하였습니다. 원인은 다음과 같습니다.\r\n\r\n"
    u"원인 1) 인터넷 연결이 안된 경우.\r\n"
    u"원인 2) 폰디라 서버가 응닶이 없는 경우.\r\n"
    u"원인 3) 폰디라 가입을 해지한 경우.\r\n"
    u"원인 4) 폰디라 사용이 일시 정지된 경우.\r\n\r\n"
    u"인터넷 연결상태를 확인하시고 잠시 후 다시 시작하여 주십시오.";

constexpr platform::TextView JOB_FAILED = u"메시지 등록을 실패하였습니다.";

}  // namespace

/// An error ends the job where it is, without a report; rows that are done keep their status.
void frmZentSend::run_job(const CarrierKind* kind, Pauses pauses,
                          const std::function<void(SendJob&)>& send_rows) {
    job_started_ = true;
    const platform::HeldRows held(RecipientRows);
    const drafts::NotedJob noted(drafts_);
    const platform::PatienceScope patience(
        platform_.carrier, [this](std::chrono::milliseconds waited) { return waits_for_answer(waited); });
    try {
        SendJob job = prepare(kind, pauses);
        send_rows(job);
        report(job);
    } catch (const SessionRefused&) {
        normal_cursor();
        show_pieces();
        platform_.desktop.notify(Text(JOB_FAILED));
        core::warn(platform_.desktop, Text(FAILURE_MESSAGE) + open_ends(RecipientRows));
    } catch (const platform::RuntimeError& error) {
        normal_cursor();
        show_pieces();
        platform_.desktop.notify(Text(JOB_FAILED));
        core::show_error(platform_.desktop,
                         {static_cast<platform::ErrorNumber>(error.number()),
                          error.description() + open_ends(RecipientRows)},
                         platform::BoxIcon::critical);
    }
    unload();
}

SendJob frmZentSend::prepare(const CarrierKind* kind, Pauses pauses) {
    StopRequested = false;
    Command1.set_enabled(true);
    main_form_.sender.fill_empty_callback();
    const platform::LocalTime now = platform_.clock.now();
    SendJob job{.kind = kind,
                .pauses = pauses,
                .started = now,
                .message = message_of_draft(main_form_, kind, Documents, now),
                .subject = {}};
    job.subject = job.message.s_subject;
    state_.session.gSubmitSequence = 1;
    return job;
}

void frmZentSend::open_session(SendJob& job) {
    wait_cursor();
    bool usable = gateway_.GATEWAY_BIND(job.kind != nullptr ? job.kind->bind_mode : 1);
    if (usable && !job.account_checked) {
        job.account_checked = true;
        usable = gateway_.GATEWAY_MONEY_STATUS() && state_.session.gServiceState <= core::LAST_USABLE_STATE;
    }
    if (usable) return;
    gateway_.GATEWAY_UNBIND();
    throw SessionRefused();
}

/// Registers the job's message for the rows and, if the carrier accepts it, waits. Returns the status for the
/// rows. `decides` says whether this is the last that the rows get, so that its status is theirs.
Text frmZentSend::submit(SendJob& job, const std::vector<std::size_t>& rows, bool decides,
                         platform::TextView without_call) {
    wait_cursor();
    if (job.kind == nullptr) return Text(without_call);
    show_percentage();
    drafts_.before_submit(rows);
    Text result = gateway_.UMS_SEND_START(job.message);
    take_answer(job, rows, decides, result);
    wait_cursor();
    if (result == gateway::REGISTERED) {
        platform_.desktop.yield();
        platform_.clock.pause(job.pauses.after_success);
    }
    return result;
}

/// Notes at once what the answer means for the rows: the list shows it only after the pause.
void frmZentSend::take_answer(SendJob& job, const std::vector<std::size_t>& rows, bool decides,
                              const Text& result) {
    const bool registered = result == gateway::REGISTERED;
    const bool unconfirmed = result == gateway::NO_ANSWER;
    for (const std::size_t row : rows) {
        const Text& pieces = RecipientRows.row(row).sub_item(compose::RECIPIENT_PIECES);
        if (registered && job.all_pieces > 1)
            RecipientRows.set_sub_item(row, compose::RECIPIENT_PIECES,
                                       decides ? Text() : with_piece(pieces, job.pieces, job.all_pieces));
    }
    drafts_.after_submit(rows, [&](platform::KeptRecipient& recipient) {
        if (decides || unconfirmed)
            recipient.status = result;
        else if (registered)
            recipient.status = status_of_pieces(recipient.pieces);
        if (unconfirmed || (decides && registered)) recipient.checked = false;
    });
    if (!unconfirmed) return;
    job.unconfirmed += static_cast<int>(rows.size());
    // Also before the last piece: nobody is sent anything more until the user has looked.
    for (const std::size_t row : rows) write_status(row, row + 1, result);
}

void frmZentSend::close_session(const SendJob& job) {
    platform_.desktop.yield();
    platform_.clock.pause(job.pauses.before_unbind);
    gateway_.GATEWAY_UNBIND();
    wait_cursor();
    ++state_.session.gSubmitSequence;
}

void frmZentSend::count(SendJob& job, const Text& result, int recipients) {
    if (result == gateway::NO_ANSWER) return;
    (result == gateway::REGISTERED ? job.success : job.failure) += recipients;
}

/// Writes the status into the checked rows of the range. A row that failed stays checked, so that sending
/// again tries just these; one whose registration is unconfirmed does not, or it could be sent to twice.
void frmZentSend::write_status(std::size_t first_row, std::size_t end_row, const Text& status) {
    for (std::size_t row = first_row; row < end_row; ++row) {
        if (!RecipientRows.row(row).checked()) continue;
        RecipientRows.set_sub_item(row, compose::RECIPIENT_STATUS, status);
        if (status == gateway::REGISTERED || status == gateway::NO_ANSWER)
            RecipientRows.set_checked(row, false);
    }
}

/// Shows of the recipients who wait for the rest of a text how much of it is registered, unless the carrier
/// has said why the rest is not.
void frmZentSend::show_pieces() {
    for (std::size_t row = 0; row < RecipientRows.row_count(); ++row) {
        const platform::ListItem& recipient = RecipientRows.row(row);
        const Text status = status_of_pieces(recipient.sub_item(compose::RECIPIENT_PIECES));
        const Text& shown = recipient.sub_item(compose::RECIPIENT_STATUS);
        if (!status.empty() && (shown.empty() || shown.ends_with(PIECES_REGISTERED)))
            RecipientRows.set_sub_item(row, compose::RECIPIENT_STATUS, status);
    }
}

void frmZentSend::show_stopped() {
    normal_cursor();
    Remaining.set_caption(u"");
    core::warn(platform_.desktop, u"메시지 등록이 중지되었습니다");
}

void frmZentSend::report(const SendJob& job) {
    normal_cursor();
    const Text text = report_text(job, MSGSendCount, platform_.clock.now());
    show_pieces();
    SEND_FINISHED();
    if (job.success > 0 && job.kind != nullptr && job.kind->content == compose::Content::recording)
        main_form_.voice.RFK1.set_kept();
    frmSendEndBox box(platform_, main_form_);
    box.load();
    box.Text1.set_text(Text(platform::CRLF) + text + open_ends(RecipientRows));
    const Outcome outcome = outcome_of(job, MSGSendCount);
    box.show_outcome(outcome);
    if (job.success > 0) box.offer_results();
    platform_.desktop.notify(in_lines(outcome));
    box.show_modal();
}

/// Prepares the window to stay behind the report: the film at rest, the button ready to close it.
void frmZentSend::SEND_FINISHED() {
    if (core::open_film(platform_, Animation1, SendAnimationPath)) Animation1.stop();
    Command1.set_caption(u"닫기");
    Command1.set_enabled(true);
}

}  // namespace send
