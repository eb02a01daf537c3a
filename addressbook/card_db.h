#pragma once

#include "core/app_state.h"
#include "platform/ports/platform.h"

namespace addressbook {

/// A database field's value as a text: NULL is empty, a number its decimal digits.
platform::Text FIELD_VALUE(platform::CardField field);

/// Opens the card manager's database anew in `gCardDb`. Returns "OK", or the text of a box about what failed;
/// nothing is open then.
platform::Text CONNECT_CARD_DB(platform::Platform& platform, core::AppState& state);

/// The same, with a box about a failure when `showError`. Returns whether the database is open.
bool OPEN_CARD_DB(platform::Platform& platform, core::AppState& state, bool showError);

/// Runs a statement on the open connection. Raises RuntimeError for a broken statement and when nothing is
/// open.
std::unique_ptr<platform::CardRecordset> open_recordset(core::AppState& state,
                                                        const platform::Text& statement);

}  // namespace addressbook
