#pragma once

#include "compose/main_form.h"
#include "platform/ports/platform.h"

namespace send {

/// Whether the piece, counted from 1, is registered for the recipient, whose row keeps the pieces as
/// "#1#3#/4": the first and the third of four.
bool has_piece(platform::TextView pieces, int piece);

/// The same with one more piece.
platform::Text with_piece(platform::TextView pieces, int piece, int all);

/// Ends the status of a recipient who has some of the pieces, as "2/3 등록".
inline constexpr platform::TextView PIECES_REGISTERED = u" 등록";

/// That status; empty for a recipient without a piece.
platform::Text status_of_pieces(platform::TextView pieces);

/// For how many recipients how many of the pieces are registered, a line each; empty when no recipient waits
/// for the rest of a text.
platform::Text pieces_report(const platform::ListView& recipients);

/// What the user is to know below the report of a job, or below the box about its failure: the recipients who
/// wait for the rest of a text, and those whose registration is unconfirmed. Empty when there are none.
platform::Text open_ends(const platform::ListView& recipients);

/// Called before a job. Of the text that has been registered in part for the listed recipients, asks whether
/// to go on with the rest; of any other text what is registered counts no more. Returns false when the user
/// does not want to send after all.
bool settle_pieces(const platform::Platform& platform, compose::frmZent& form);

}  // namespace send
