// SEND_SINGLES: one recipient a submit, for all kinds; a personal text that is too long fails instead of
// being cut.

#include "core/byte_length.h"
#include "core/personal_text.h"
#include "send/frmZentSend.h"

namespace send {

using platform::Text;

namespace {

constexpr platform::TextView TEXT_TOO_LONG = u"등록실패(문자초과)";
/// Deliberately another word than in the other routines: it shows support which one has run.
constexpr platform::TextView FAILED = u"실패";

}  // namespace

void frmZentSend::SEND_SINGLES(const Text& kind_name) {
    run_job(compose::find_carrier_kind(kind_name).carrier, compose::USUAL_PAUSES, [this](SendJob& job) {
        for_each_recipient(job, [&](std::size_t row) { send_single_row(job, row); });
    });
}

void frmZentSend::send_single_row(SendJob& job, std::size_t row) {
    const auto fail = [&](platform::TextView status) {
        ++job.failure;
        write_status(row, row + 1, Text(status));
    };
    if (is_personal()) {
        const std::optional<Text> text =
            core::personal_text(main_form_.text.mText1.text(), RecipientRows, row);
        if (!text) return fail(NAME_MISSING);
        if (core::BYTE_LEN(*text) > compose::TEXT_LIMIT) return fail(TEXT_TOO_LONG);
        job.message.s_sms_content = *text;
    }
    const std::optional<Text> address = address_of(RecipientRows.row(row));
    if (!address) return;
    job.message.s_dest_addr_count = 1;
    job.message.s_dest_addr = *address;

    open_session(job);
    PBar1.set_progress(row + 1, RecipientRows.row_count());
    const Text result = submit(job, {row}, true, FAILED);
    count(job, result, 1);
    close_session(job);
    write_status(row, row + 1, result);
}

}  // namespace send
