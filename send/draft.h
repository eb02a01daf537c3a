#pragma once

#include "compose/main_form.h"
#include "gateway/gateway.h"

namespace send {

/// A schedule as the carrier takes it: 14 digits, from the year to the minute, then two zeros.
platform::Text schedule_digits(const platform::DatePicker& date, const platform::ComboBox& hour,
                               const platform::ComboBox& minute);

/// The fields of a registration that are the same for every recipient. For no kind (null) only subject and
/// schedule are filled. `documents` is the list of a fax's files as the check before sending made it.
gateway::UmsMessage message_of_draft(const compose::frmZent& form, const compose::CarrierKind* kind,
                                     const platform::Text& documents, platform::LocalTime now);

}  // namespace send
