#pragma once

#include "compose/main_form.h"
#include "core/app_state.h"
#include "gateway/gateway.h"
#include "send/kinds.h"

namespace send {

/// Offers the account's number as callback where the user has left the field empty.
void fill_empty_callback(compose::frmZent& form, const core::AppState& state);

/// 14 digits, year to minute and two zeros, as the carrier takes a schedule.
platform::Text schedule_digits(const platform::DatePicker& date, const platform::ComboBox& hour,
                               const platform::ComboBox& minute);

/// The fields of a registration that are the same for every recipient. For no kind (null) only subject and
/// schedule are filled.
gateway::UmsMessage message_of_draft(const compose::frmZent& form, const Kind* kind, platform::LocalTime now);

}  // namespace send
