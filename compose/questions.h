#pragma once

#include "platform/controls/fields.h"
#include "platform/controls/list_view.h"
#include "platform/ports/desktop.h"

namespace compose {

/// Whether a text above TEXT_LIMIT is to go in pieces. `yes` names the answer in the question's own words.
bool ask_for_long_text(platform::Desktop& desktop, platform::TextView yes);

/// Tells that a text above TEXT_LIMIT is cut.
void tell_text_is_cut(platform::Desktop& desktop);

/// Asks for the selected rows and removes them. Returns whether they are gone.
bool remove_selected_rows(platform::Desktop& desktop, platform::ListView& list);

}  // namespace compose
