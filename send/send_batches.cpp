// SEND_BATCHES: the whole text to up to 100 recipients a submit, one pass over the rows.

#include "core/byte_length.h"
#include "platform/text/format.h"
#include "send/frmZentSend.h"
#include "send/pieces.h"
#include "send/recipient_text.h"

namespace send {

using platform::Text;

namespace {

/// The most recipients that the carrier takes in one submit.
constexpr int RECIPIENT_LIMIT = 100;
/// The most bytes of cp949 in one submit's addresses.
constexpr std::size_t ADDRESS_LIMIT = 2048;

}  // namespace

void frmZentSend::SEND_BATCHES(const Text& kind_name) {
    const auto [kind, carrier] = compose::find_carrier_kind(kind_name);
    if (carrier != nullptr && carrier->content == compose::Content::text &&
        core::BYTE_LEN(main_form_.text.mText1.text()) > compose::TEXT_LIMIT) {
        SEND_LONG_BATCHES();
        return;
    }
    run_job(carrier, kind != nullptr ? kind->pauses : compose::USUAL_PAUSES, [this](SendJob& job) {
        Batch batch;
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
        if (add_to_batch(batch, current, job.pieces)) submit_batch(job, batch, current, options.leaves_trace);
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

/// Adds the row to the batch when it is checked, has a number and has not got the piece yet (a text that goes
/// whole is piece 0, which nobody has got). Returns whether the batch is to be
/// submitted now. A row that does not fit is not consumed (`current` is decremented) and starts the next
/// batch.
bool frmZentSend::add_to_batch(Batch& batch, std::size_t& current, int piece) const {
    const platform::ListItem& row = RecipientRows.row(current - 1);
    if (!row.checked() || has_piece(row.sub_item(compose::RECIPIENT_PIECES), piece)) return false;
    const std::optional<Text> address = address_of(row);
    if (!address) return false;

    const std::size_t bytes = batch.bytes + core::BYTE_LEN(*address);
    if (bytes > ADDRESS_LIMIT) {
        // A recipient that is too long for any batch is left out like one without a number.
        if (batch.s_dest_addr.empty()) return false;
        --current;
        return true;
    }
    batch.s_dest_addr += *address;
    batch.bytes = bytes;
    batch.rows.push_back(current - 1);
    ++batch.count;
    // Deliberately before the first row is noted: an address that fills a batch alone also marks rows that
    // failed in the batch before. Users and support know the status column so.
    if (bytes == ADDRESS_LIMIT) return true;
    if (batch.count == 1) batch.first_row = current - 1;
    return batch.count == RECIPIENT_LIMIT || current == RecipientRows.row_count();
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
    close_session(job);
    batch.rows.clear();
    batch.count = 0;
    batch.bytes = 0;
    batch.s_dest_addr.clear();
}

}  // namespace send
