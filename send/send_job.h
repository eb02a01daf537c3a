#pragma once

#include "compose/message_kinds.h"
#include "gateway/gateway.h"
#include "platform/text/calendar.h"
#include "platform/text/text.h"
#include "send/pace.h"

namespace send {

/// State of one job (all but the recipient rows).
struct SendJob {
    /// Null when no kind has the given name: then nothing is submitted and every row fails.
    const compose::CarrierKind* kind;
    compose::Pauses pauses;
    platform::LocalTime started;

    /// The next registration; each routine changes what its submits differ in.
    gateway::UmsMessage message;
    /// As the user wrote it; a batch of many is registered under it with a number behind.
    platform::Text subject;

    bool account_checked = false;
    int batch_sequence = 0;
    /// Pieces cut from the text so far, and all that it has.
    int pieces = 0;
    int all_pieces = 0;

    // Counted in recipients.
    int success = 0;
    int failure = 0;
    /// Whose registration the carrier has not answered.
    int unconfirmed = 0;

    /// How far it is.
    Steps steps{};
    Unit unit = Unit::batch;
    /// What it waits within each step.
    std::chrono::milliseconds waits{};
};

/// The carrier cannot be reached or the account cannot be used: the job ends without a report.
struct SessionRefused {};

/// Status of a row for which no call was made.
inline constexpr platform::TextView NOT_REGISTERED = u"등록실패";
/// Status of a row without a name when the text asks for one.
inline constexpr platform::TextView NAME_MISSING = u"등록실패(이름없음)";

}  // namespace send
