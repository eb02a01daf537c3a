#pragma once

#include "drafts/kept_fields.h"
#include "platform/ports/draft_store.h"

#include <cstddef>

namespace drafts {

/// How many recipients a kept draft has, and how far it got with them.
struct RecipientCounts {
    std::size_t all = 0;
    std::size_t to_send = 0;
    std::size_t registered = 0;
    std::size_t unconfirmed = 0;

    void add(const platform::KeptRecipient& recipient);
};

/// The kept draft in a line: what it is, for how many, and of when.
platform::Text summary(const platform::KeptDraft& draft, const RecipientCounts& recipients);

/// The question whether to take up the draft of a run that did not end in order.
platform::Text question(const platform::KeptDraft& draft, const RecipientCounts& recipients);

}  // namespace drafts
