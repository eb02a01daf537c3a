#pragma once

#include "compose/main_form.h"

namespace send {

/// The recipients of a draft: the checked rows.
struct Recipients {
    int count = 0;
    platform::Text first_name;
    platform::Text first_number;
};

/// What the user reads before the message is sent.
platform::Text confirmation_text(const compose::frmZent& form, const compose::CarrierKind& kind,
                                 const Recipients& recipients);

}  // namespace send
