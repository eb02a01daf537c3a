#pragma once

#include "platform/text/text.h"

namespace machine::jet {

/// Translates the statement for SQLite: `[a.f_idx]` becomes column f_idx of a, and a long chain `f_idx=1 or
/// f_idx=2 or ...` becomes one test, which is neither nested deeply nor slow. Raises RuntimeError for what
/// the card manager's database rejects: texts or brackets without an end, and comments.
platform::Text sqlite_statement(platform::TextView statement);

}  // namespace machine::jet
