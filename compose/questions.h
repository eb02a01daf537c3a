#pragma once

#include "platform/controls/fields.h"
#include "platform/controls/list_view.h"
#include "platform/ports/desktop.h"

#include <cstddef>

namespace compose {

/// Asks whether a text above TEXT_LIMIT is to be sent in pieces. `yes` is what the question calls that
/// answer.
bool ask_for_long_text(platform::Desktop& desktop, platform::TextView yes);

/// Shows that a text above TEXT_LIMIT is cut.
void show_text_is_cut(platform::Desktop& desktop);

/// Asks whether recipients who are or may be registered already are to be checked again.
bool ask_to_check_again(platform::Desktop& desktop, std::size_t recipients);

/// Asks whether to remove the selected rows, and removes them after a yes; the row that takes their place is
/// selected then. Returns the rows that went.
platform::TakenRows remove_selected_rows(platform::Desktop& desktop, platform::ListView& list);

}  // namespace compose
