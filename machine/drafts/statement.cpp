#include "machine/drafts/statement.h"

#include "platform/error.h"

#include <sqlite3.h>

namespace machine::drafts {

using platform::ErrorNumber;
using platform::Text;
using platform::TextView;

namespace {

ErrorNumber number_of(int result) {
    switch (result & 0xff) {
        case SQLITE_FULL:
            return ErrorNumber::disk_full;
        case SQLITE_NOMEM:
            return ErrorNumber::out_of_memory;
        case SQLITE_PERM:
        case SQLITE_READONLY:
            return ErrorNumber::permission_denied;
        // A table or a column is missing.
        case SQLITE_ERROR:
        case SQLITE_CORRUPT:
        case SQLITE_NOTADB:
        case SQLITE_TOOBIG:
            return ErrorNumber::database_unusable;
        default:
            return ErrorNumber::path_access;
    }
}

}  // namespace

void check(sqlite3* database, int result) {
    if (result == SQLITE_OK) return;
    if (sqlite3_get_autocommit(database) == 0) sqlite3_exec(database, "ROLLBACK", nullptr, nullptr, nullptr);
    throw platform::RuntimeError(number_of(result));
}

Statement::~Statement() {
    sqlite3_reset(statement_);
    sqlite3_clear_bindings(statement_);
}

Statement& Statement::bind(TextView text) {
    const auto bytes = static_cast<int>(text.size() * sizeof(char16_t));
    // An empty view may have no address, which would stand for a missing value.
    const void* data = text.empty() ? u"" : text.data();
    check(sqlite3_bind_text16(statement_, ++bound_, data, bytes, SQLITE_STATIC));
    return *this;
}

Statement& Statement::bind(std::int64_t number) {
    check(sqlite3_bind_int64(statement_, ++bound_, number));
    return *this;
}

bool Statement::next_row() {
    const int result = sqlite3_step(statement_);
    if (result == SQLITE_ROW) return true;
    if (result != SQLITE_DONE) check(result);
    return false;
}

void Statement::run() {
    while (next_row()) {
    }
}

Text Statement::text(int column) const {
    const auto* data = static_cast<const char16_t*>(sqlite3_column_text16(statement_, column));
    const auto bytes = static_cast<std::size_t>(sqlite3_column_bytes16(statement_, column));
    return data == nullptr ? Text() : Text(data, bytes / sizeof(char16_t));
}

std::int64_t Statement::number(int column) const { return sqlite3_column_int64(statement_, column); }

void Statement::check(int result) const { drafts::check(sqlite3_db_handle(statement_), result); }

}  // namespace machine::drafts
