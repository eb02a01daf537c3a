// SEND_LONG_BATCHES: a text too long for one message, a pass over the rows for each piece.

#include "core/byte_length.h"
#include "platform/text/number.h"
#include "send/frmZentSend.h"

namespace send {

using platform::Text;

namespace {

/// Rounded to the nearest, halves to even: a text whose last piece is less than half full counts as one piece
/// fewer than it has.
std::size_t expected_pieces(const Text& text) {
    const double messages = static_cast<double>(core::BYTE_LEN(text)) / compose::TEXT_LIMIT;
    return static_cast<std::size_t>(platform::round_half_even(messages));
}

}  // namespace

void frmZentSend::SEND_LONG_BATCHES() {
    const compose::KindOfMessage& text = kind_of(compose::MessageKind::text);
    run_job(&carrier_kind(text, compose::Content::text), text.pauses, [this](SendJob& job) {
        begin_pieces(job, platform::right_trim(main_form_.text.mText1.text()));
        const std::size_t expected = expected_pieces(mText1.text());
        Batch batch;
        int batches = 0;
        for (int piece = 1; piece <= job.all_pieces; ++piece) {
            batches += count_batches(RecipientRows, piece);
            platform_.desktop.paint();
        }
        begin_progress(job, batches, Unit::batch);
        while (!mText1.text().empty()) {
            next_piece(job);
            state_.session.gSubmitSequence = 1;
            job.account_checked = false;
            job.batch_sequence = 0;
            // Deliberately leaves address text and count, which keep the recipients of a stopped pass: the
            // service has always been given such a batch.
            batch.first_row = 0;

            // Deliberately only the last piece counts and marks its rows: they must stay checked until then,
            // or the later pieces would reach nobody. A stop ends the pass of one piece alone.
            const bool last = mText1.text().empty();
            pass_over_rows(job, batch, {.leaves_trace = last, .shows_progress = false});
            // Deliberately not limited: a value above 100 raises the error that ends such a job.
            if (!last) PBar1.set_progress(static_cast<std::size_t>(job.pieces), expected);
        }
    });
}

}  // namespace send
