#pragma once

#include "platform/text/text.h"

namespace compose {

/// What came of registering a message for a recipient.
enum class Outcome {
    /// Nothing yet, or not all of the message.
    open,
    registered,
    failed,
    /// The carrier has not answered: it may be registered.
    unconfirmed,
};

/// What the status of a recipient's row means.
Outcome outcome_of(platform::TextView status);

}  // namespace compose
