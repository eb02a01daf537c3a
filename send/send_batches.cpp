// SEND_BATCHES: the whole text to up to 100 recipients a submit, one pass over the rows.

#include "core/byte_length.h"
#include "platform/text/format.h"
#include "send/frmZentSend.h"

namespace send {

using platform::Text;

void frmZentSend::SEND_BATCHES(const Text& kind_name) {
    const auto [kind, carrier] = compose::find_carrier_kind(kind_name);
    if (carrier != nullptr && carrier->content == compose::Content::text &&
        core::BYTE_LEN(main_form_.text.mText1.text()) > compose::TEXT_LIMIT) {
        SEND_LONG_BATCHES();
        return;
    }
    run_job(carrier, kind != nullptr ? kind->pauses : compose::USUAL_PAUSES, [this](SendJob& job) {
        Batch batch;
        begin_progress(job, count_batches(RecipientRows, job.pieces), Unit::batch);
        pass_over_rows(job, batch, {.leaves_trace = true, .shows_progress = true});
    });
}

/// Goes once over the rows and submits a batch whenever one is full. `current` is the number of the present
/// row, counted from 1.
void frmZentSend::pass_over_rows(SendJob& job, Batch& batch, PassOptions options) {
    const std::size_t rows = RecipientRows.row_count();
    std::size_t current = 0;
    while (current != rows) {
        ++current;
        if (options.leaves_trace) RecipientRows.make_visible(current - 1);
        if (add_to_batch(RecipientRows, batch, current, job.pieces))
            submit_batch(job, batch, current, options.leaves_trace);
        if (options.shows_progress) PBar1.set_progress(current, rows);
        if (current == rows) {
            // The last rows were left out, but the batch holds earlier ones.
            if (!batch.s_dest_addr.empty()) submit_batch(job, batch, current, options.leaves_trace);
        } else if (StopRequested) {
            // Deliberately not checked after the last row: everything is done there. The recipients of the
            // open batch stay unsent and checked.
            show_stopped();
            return;
        }
    }
}

void frmZentSend::submit_batch(SendJob& job, Batch& batch, std::size_t current, bool leaves_trace) {
    open_session(job);
    ++job.batch_sequence;
    job.message.s_subject = job.subject;
    if (MSGSendCount > RECIPIENT_LIMIT) {
        job.message.s_subject += platform::format_number(job.batch_sequence, u"00");
    }
    job.message.s_dest_addr_count = batch.count;
    job.message.s_dest_addr = batch.s_dest_addr;
    const Text result = submit(job, batch.rows, leaves_trace);
    if (leaves_trace) {
        count(job, result, batch.count);
        write_status(batch.first_row, current, result);
    }
    step_done(job);
    close_session(job);
    batch.rows.clear();
    batch.count = 0;
    batch.bytes = 0;
    batch.s_dest_addr.clear();
}

}  // namespace send
