#pragma once

#include "machine/jet/sql/card_table.h"

struct sqlite3;

namespace machine::jet {

/// Lets statements of the database read the table under its name. The table has all its rows and has to
/// outlive the database. Returns false on failure.
bool attach(sqlite3* database, const CardTable& table);

}  // namespace machine::jet
