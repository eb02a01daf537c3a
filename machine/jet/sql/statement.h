#pragma once

#include "platform/text/text.h"

namespace machine::jet {

/// The statement as SQLite understands it: `[a.f_idx]` is column f_idx of a, and a long row of tests of one
/// column, `f_idx=1 or f_idx=2 or ...`, is a single test, neither deep nor slow. Raises RuntimeError for what
/// the card manager's database does not take: text or brackets without an end, and comments.
platform::Text sqlite_statement(platform::TextView statement);

}  // namespace machine::jet
