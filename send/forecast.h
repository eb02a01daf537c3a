#pragma once

#include "compose/main_form.h"
#include "gateway/gateway.h"

#include <chrono>
#include <cstddef>

namespace send {

/// What sending a draft will come to. A carrier that is slow to answer takes the job longer.
struct Forecast {
    /// What the first of the recipients gets: the text, then what he hears or the names of the documents.
    platform::Text content;
    /// Of the longest text message; 0 for a kind without one.
    std::size_t bytes = 0;
    /// How many messages the text is for one recipient: for most of them the same number.
    int fewest_messages = 0;
    int most_messages = 0;
    /// For all recipients together; 0 while that is open.
    std::size_t messages = 0;
    /// Recipients who get nothing because the text has a place for their name and they have none.
    int nameless = 0;
    /// How many registrations the carrier is asked for, and how long the job pauses between them.
    int submits = 0;
    bool one_by_one = false;
    std::chrono::milliseconds pauses{0};
    /// Characters of subject, text and speech that arrive as question marks.
    std::size_t lost_characters = 0;
};

/// `message` is what goes to the carrier for the draft.
Forecast forecast_of(const compose::frmZent& form, const gateway::UmsMessage& message);

/// Size, number of messages and registrations, and time, a line each.
platform::Text amount_in_words(const Forecast& forecast);

}  // namespace send
