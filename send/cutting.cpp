// A text cut into pieces of one message each. Every piece is scheduled a minute after the one before, since
// nothing else keeps them in order.

#include "compose/schedule_time.h"
#include "core/byte_length.h"
#include "platform/text/format.h"
#include "send/draft.h"
#include "send/frmZentSend.h"
#include "send/pieces.h"

namespace send {

using platform::Text;

/// The first piece goes at the draft's schedule, or now.
void frmZentSend::begin_pieces(SendJob& job, const Text& text) {
    mText1.set_text(text);
    job.pieces = 0;
    job.all_pieces = core::count_pieces(text, compose::TEXT_LIMIT);
    if (main_form_.schedule.Option1.chosen()) {
        compose::show_schedule({DTP1, Combo1, Combo2}, platform_.clock.now());
    } else {
        take_schedule();
    }
}

void frmZentSend::take_schedule() {
    DTP1.set_value(main_form_.schedule.DTP1.value());
    Combo1.set_list_index(main_form_.schedule.Combo1.list_index());
    Combo2.set_list_index(main_form_.schedule.Combo2.list_index());
}

/// Cuts a piece and puts it, with its time, into the job's message.
void frmZentSend::next_piece(SendJob& job) {
    Text1.set_text(CUT_NEXT_PIECE());
    if (++job.pieces > 1) ADD_SCHEDULE_MINUTES(1);
    job.message.s_sms_content = Text1.text();
    job.message.s_schedule_time = schedule_digits(DTP1, Combo1, Combo2);
}

Text frmZentSend::CUT_NEXT_PIECE() {
    Text text = mText1.text();
    Text piece = core::LLL(text, compose::TEXT_LIMIT);
    // Deliberately trimmed at its end only: a blank at the start of a piece is the user's.
    mText1.set_text(platform::right_trim(text.substr(piece.size())));
    return piece;
}

void frmZentSend::ADD_SCHEDULE_MINUTES(int minutes) {
    compose::add_schedule_minutes({DTP1, Combo1, Combo2}, minutes);
}

}  // namespace send
