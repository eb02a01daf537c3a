// SEND_PERSONAL: a text with the recipient's name or title in it, one recipient a submit. Also what it shares
// with the other routine that goes recipient by recipient.

#include "core/personal_text.h"
#include "send/frmZentSend.h"
#include "send/pieces.h"

namespace send {

using platform::Text;

void frmZentSend::SEND_PERSONAL() {
    const compose::KindOfMessage& text = kind_of(compose::MessageKind::text);
    run_job(&carrier_kind(text, compose::Content::text), compose::PERSONAL_PAUSES, [this](SendJob& job) {
        for_each_recipient(job, [&](std::size_t row) { send_personal_row(job, row); });
    });
}

/// The checked rows, one after the other, until the user stops the job; here the box about the
/// stop also comes behind the last row.
void frmZentSend::for_each_recipient(SendJob& job, const std::function<void(std::size_t row)>& send_row) {
    begin_progress(job, MSGSendCount, Unit::person);
    const std::size_t rows = RecipientRows.row_count();
    for (std::size_t row = 0; row < rows; ++row) {
        RecipientRows.make_visible(row);
        if (RecipientRows.row(row).checked()) {
            send_row(row);
            step_done(job);
        }
        if (StopRequested) {
            show_stopped();
            return;
        }
    }
}

void frmZentSend::send_personal_row(SendJob& job, std::size_t row) {
    const std::optional<Text> text =
        core::personal_text(platform::right_trim(main_form_.text.mText1.text()), RecipientRows, row);
    if (!text) {
        ++job.failure;
        write_status(row, row + 1, Text(NAME_MISSING));
        return;
    }
    const std::optional<Text> address = address_of(RecipientRows.row(row));
    if (!address) return;
    job.message.s_dest_addr_count = 1;
    job.message.s_dest_addr = *address;

    Text result(NOT_REGISTERED);
    begin_pieces(job, *text);
    while (!mText1.text().empty()) {
        next_piece(job);
        if (has_piece(RecipientRows.row(row).sub_item(compose::RECIPIENT_PIECES), job.pieces)) continue;
        open_session(job);
        PBar1.set_progress(row + 1, RecipientRows.row_count());
        result = submit(job, {row}, mText1.text().empty());
        // Deliberately only the last piece decides: a recipient who got the end of a text is not sent all of
        // it again.
        if (mText1.text().empty()) count(job, result, 1);
        close_session(job);
        if (result == gateway::NO_ANSWER) return;
    }
    write_status(row, row + 1, result);
}

}  // namespace send
