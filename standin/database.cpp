#include "standin/database.h"

#include <stdexcept>

namespace standin {
namespace {

constexpr int milliseconds_for_other_writers = 5000;

[[noreturn]] void fail(sqlite3* database) {
    throw std::runtime_error(std::string("ledger: ") + sqlite3_errmsg(database));
}

}  // namespace

Statement::Statement(sqlite3* database, std::string_view sql) {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(database, sql.data(), static_cast<int>(sql.size()), &statement, nullptr) !=
        SQLITE_OK) {
        fail(database);
    }
    statement_.reset(statement);
}

void Statement::check(int code) const {
    if (code != SQLITE_OK) {
        fail(sqlite3_db_handle(statement_.get()));
    }
}

void Statement::bind(int parameter, std::optional<std::int64_t> number) {
    check(number ? sqlite3_bind_int64(statement_.get(), parameter, *number)
                 : sqlite3_bind_null(statement_.get(), parameter));
}

void Statement::bind_text(int parameter, const std::optional<std::string>& text) {
    check(text ? sqlite3_bind_text64(statement_.get(), parameter, text->data(), text->size(),
                                     SQLITE_TRANSIENT, SQLITE_UTF8)
               : sqlite3_bind_null(statement_.get(), parameter));
}

void Statement::bind_bytes(int parameter, const std::optional<std::string>& bytes) {
    check(bytes ? sqlite3_bind_blob64(statement_.get(), parameter, bytes->data(), bytes->size(),
                                      SQLITE_TRANSIENT)
                : sqlite3_bind_null(statement_.get(), parameter));
}

bool Statement::step() {
    const int code = sqlite3_step(statement_.get());
    if (code == SQLITE_ROW) {
        return true;
    }
    if (code != SQLITE_DONE) {
        const std::string words = sqlite3_errmsg(sqlite3_db_handle(statement_.get()));
        sqlite3_reset(statement_.get());
        throw std::runtime_error("ledger: " + words);
    }
    sqlite3_reset(statement_.get());
    return false;
}

int Statement::columns() const { return sqlite3_column_count(statement_.get()); }

std::int64_t Statement::number(int column) const { return sqlite3_column_int64(statement_.get(), column); }

std::string Statement::bytes(int column) const {
    const auto* data = static_cast<const char*>(sqlite3_column_blob(statement_.get(), column));
    const int size = sqlite3_column_bytes(statement_.get(), column);
    return data == nullptr ? std::string() : std::string(data, static_cast<std::size_t>(size));
}

Database::Database(const std::string& path, Access access) {
    const int flags =
        access == Access::write ? SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE : SQLITE_OPEN_READONLY;
    sqlite3* database = nullptr;
    const int code = sqlite3_open_v2(path.c_str(), &database, flags, nullptr);
    database_.reset(database);
    if (code != SQLITE_OK) {
        throw std::runtime_error("ledger " + path + ": " + sqlite3_errstr(code));
    }
    sqlite3_busy_timeout(database, milliseconds_for_other_writers);
}

void Database::execute(const char* sql) {
    if (sqlite3_exec(database_.get(), sql, nullptr, nullptr, nullptr) != SQLITE_OK) {
        fail(database_.get());
    }
}

Statement Database::prepare(std::string_view sql) const { return Statement(database_.get(), sql); }

std::int64_t Database::last_row() const { return sqlite3_last_insert_rowid(database_.get()); }

Transaction::Transaction(Database& database) : database_(database) { database_.execute("BEGIN IMMEDIATE"); }

Transaction::~Transaction() {
    if (open_) {
        try {
            database_.execute("ROLLBACK");
        } catch (const std::runtime_error&) {
            // SQLite has already rolled back by itself, as after a full disk. The first failure is the one to
            // report.
        }
    }
}

void Transaction::commit() {
    database_.execute("COMMIT");
    open_ = false;
}

}  // namespace standin
