#include "machine/drafts/sqlite_draft_store.h"

#include "machine/posix/file_descriptor.h"
#include "machine/posix/paths.h"
#include "machine/posix/private_folder.h"
#include "platform/error.h"

#include <cstdio>
#include <fcntl.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <utility>

namespace machine::drafts {

using platform::ErrorNumber;
using platform::KeptDraft;
using platform::KeptRecipient;
using platform::RuntimeError;
using platform::Text;
using platform::TextView;

namespace {

/// The version of the tables. A later one may add to them; what this program does not know stays in the file.
constexpr const char* TABLES =
    "PRAGMA user_version = 1;"
    "CREATE TABLE draft(id INTEGER PRIMARY KEY, written INTEGER, at_rest INTEGER);"
    "CREATE TABLE field(draft INTEGER, name TEXT, value TEXT, PRIMARY KEY(draft, name)) WITHOUT ROWID;"
    "CREATE TABLE recipient(draft INTEGER, row INTEGER, name TEXT, number TEXT, status TEXT, title TEXT,"
    " pieces TEXT, checked INTEGER, PRIMARY KEY(draft, row)) WITHOUT ROWID;";

/// The most bytes of one value: a text of the user is far below, a damaged file may say anything.
constexpr int VALUE_LIMIT = 64 << 20;

/// FNV-1a, the same in every run.
std::string hash_of(const std::string& text) {
    std::uint64_t hash = 0xcbf29ce484222325U;
    for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001b3U;
    char digits[17];
    std::snprintf(digits, sizeof digits, "%016llx", static_cast<unsigned long long>(hash));
    return digits;
}

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

/// A prepared statement in use: values are bound in their order, and it is ready for the next use afterwards.
class SqliteDraftStore::Statement {
  public:
    Statement(SqliteDraftStore& store, sqlite3_stmt* statement) : store_(store), statement_(statement) {}
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;
    ~Statement() {
        sqlite3_reset(statement_);
        sqlite3_clear_bindings(statement_);
    }

    /// The text has to live until the statement has run.
    Statement& bind(TextView text) {
        const auto bytes = static_cast<int>(text.size() * sizeof(char16_t));
        // An empty view may have no address, which would stand for a missing value.
        const void* data = text.empty() ? u"" : text.data();
        store_.check(sqlite3_bind_text16(statement_, ++bound_, data, bytes, SQLITE_STATIC));
        return *this;
    }
    Statement& bind(std::int64_t number) {
        store_.check(sqlite3_bind_int64(statement_, ++bound_, number));
        return *this;
    }

    bool next_row() {
        const int result = sqlite3_step(statement_);
        if (result == SQLITE_ROW) return true;
        if (result != SQLITE_DONE) store_.check(result);
        return false;
    }
    void run() {
        while (next_row()) {
        }
    }

    Text text(int column) const {
        const auto* data = static_cast<const char16_t*>(sqlite3_column_text16(statement_, column));
        const auto bytes = static_cast<std::size_t>(sqlite3_column_bytes16(statement_, column));
        return data == nullptr ? Text() : Text(data, bytes / sizeof(char16_t));
    }
    std::int64_t number(int column) const { return sqlite3_column_int64(statement_, column); }

  private:
    SqliteDraftStore& store_;
    sqlite3_stmt* statement_;
    int bound_ = 0;
};

void SqliteDraftStore::Close::operator()(sqlite3* database) const { sqlite3_close_v2(database); }
void SqliteDraftStore::Finish::operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }

SqliteDraftStore::SqliteDraftStore(std::string folder, const std::string& application_directory)
    : folder_(std::move(folder)), file_(folder_ + "/draft-" + hash_of(application_directory) + ".db") {}

SqliteDraftStore::~SqliteDraftStore() = default;

void SqliteDraftStore::open() {
    if (database_) return;
    machine::posix::make_private_folder(folder_);
    // SQLite gives its other files the permissions of this one.
    const posix::FileDescriptor file(
        ::open(file_.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, S_IRUSR | S_IWUSR));
    if (!file.is_open()) throw RuntimeError(ErrorNumber::permission_denied);
    sqlite3* database = nullptr;
    const int result = sqlite3_open_v2(file_.c_str(), &database, SQLITE_OPEN_READWRITE, nullptr);
    database_.reset(database);
    try {
        check(result);
        sqlite3_limit(database, SQLITE_LIMIT_LENGTH, VALUE_LIMIT);
        make_tables();
    } catch (const RuntimeError&) {
        close();
        throw;
    }
}

void SqliteDraftStore::make_tables() {
    // Nobody else opens the file: without a share of memory there is one file less beside it.
    run("PRAGMA locking_mode = EXCLUSIVE");
    run("PRAGMA encoding = 'UTF-16'");
    run("PRAGMA journal_mode = WAL");
    run("PRAGMA synchronous = FULL");
    bool made = false;
    {
        Statement version = statement("PRAGMA user_version");
        made = version.next_row() && version.number(0) > 0;
    }
    if (!made) {
        begin();
        check(sqlite3_exec(database_.get(), TABLES, nullptr, nullptr, nullptr));
        run("COMMIT");
    }
    Statement newest = statement("SELECT max(id) FROM draft");
    last_ = newest.next_row() ? newest.number(0) : 0;
    present_ = last_ + 1;
}

std::optional<KeptDraft> SqliteDraftStore::last() {
    open();
    KeptDraft draft;
    {
        Statement found = statement("SELECT written, at_rest FROM draft WHERE id = ?");
        if (!found.bind(last_).next_row()) return std::nullopt;
        draft.written = platform::LocalTime(std::chrono::seconds(found.number(0)));
        draft.at_rest = found.number(1) != 0;
    }
    Statement fields = statement("SELECT name, value FROM field WHERE draft = ?");
    fields.bind(last_);
    while (fields.next_row()) draft.fields.emplace(fields.text(0), fields.text(1));
    return draft;
}

void SqliteDraftStore::read_recipients(const std::function<void(KeptRecipient)>& read) {
    open();
    Statement rows = statement(
        "SELECT name, number, status, title, pieces, checked FROM recipient WHERE draft = ? ORDER BY row");
    rows.bind(last_);
    while (rows.next_row()) {
        read({.name = rows.text(0),
              .number = rows.text(1),
              .status = rows.text(2),
              .title = rows.text(3),
              .pieces = rows.text(4),
              .checked = rows.number(5) != 0});
    }
}

void SqliteDraftStore::take_up_last() {
    begin();
    for (const char* sql : {"DELETE FROM draft WHERE id > ?", "DELETE FROM field WHERE draft > ?",
                            "DELETE FROM recipient WHERE draft > ?"})
        statement(sql).bind(last_).run();
    present_ = last_;
}

void SqliteDraftStore::decline_last() {
    begin();
    statement("UPDATE draft SET at_rest = 1 WHERE id = ?").bind(last_).run();
    run("COMMIT");
}

void SqliteDraftStore::put_field(TextView name, const Text& value) {
    begin();
    statement(
        "INSERT INTO field(draft, name, value) VALUES(?, ?, ?)"
        " ON CONFLICT DO UPDATE SET value = excluded.value")
        .bind(present_)
        .bind(name)
        .bind(value)
        .run();
}

void SqliteDraftStore::put_recipient(std::size_t row, const KeptRecipient& recipient) {
    begin();
    statement(
        "INSERT INTO recipient(draft, row, name, number, status, title, pieces, checked)"
        " VALUES(?, ?, ?, ?, ?, ?, ?, ?) ON CONFLICT DO UPDATE SET name = excluded.name,"
        " number = excluded.number, status = excluded.status, title = excluded.title,"
        " pieces = excluded.pieces, checked = excluded.checked")
        .bind(present_)
        .bind(static_cast<std::int64_t>(row))
        .bind(recipient.name)
        .bind(recipient.number)
        .bind(recipient.status)
        .bind(recipient.title)
        .bind(recipient.pieces)
        .bind(recipient.checked ? 1 : 0)
        .run();
}

void SqliteDraftStore::remove_recipients_from(std::size_t row) {
    begin();
    statement("DELETE FROM recipient WHERE draft = ? AND row >= ?")
        .bind(present_)
        .bind(static_cast<std::int64_t>(row))
        .run();
}

void SqliteDraftStore::commit(platform::LocalTime now, bool at_rest) {
    begin();
    statement(
        "INSERT INTO draft(id, written, at_rest) VALUES(?, ?, ?)"
        " ON CONFLICT DO UPDATE SET written = excluded.written, at_rest = excluded.at_rest")
        .bind(present_)
        .bind(now.time_since_epoch().count())
        .bind(at_rest ? 1 : 0)
        .run();
    // The user has begun another draft than the one of the last run, which is kept; those before it are not.
    for (const char* sql : {"DELETE FROM draft WHERE id < ?", "DELETE FROM field WHERE draft < ?",
                            "DELETE FROM recipient WHERE draft < ?"})
        statement(sql).bind(last_).run();
    run("COMMIT");
}

Text SqliteDraftStore::set_aside() {
    close();
    std::string aside;
    struct stat taken {};
    for (int number = 1; number == 1 || ::lstat(aside.c_str(), &taken) == 0; ++number)
        aside = file_ + ".damaged-" + std::to_string(number);
    if (::rename(file_.c_str(), aside.c_str()) != 0) throw RuntimeError(ErrorNumber::permission_denied);
    ::rename((file_ + "-wal").c_str(), (aside + "-wal").c_str());
    return posix::Paths::from_posix(aside);
}

void SqliteDraftStore::run(const char* sql) { statement(sql).run(); }
SqliteDraftStore::Statement SqliteDraftStore::statement(const char* sql) {
    auto& prepared = prepared_[sql];
    if (!prepared) {
        sqlite3_stmt* made = nullptr;
        check(sqlite3_prepare_v3(database_.get(), sql, -1, SQLITE_PREPARE_PERSISTENT, &made, nullptr));
        prepared.reset(made);
    }
    return {*this, prepared.get()};
}

void SqliteDraftStore::begin() {
    open();
    // Outside a transaction each statement would be one of its own.
    if (sqlite3_get_autocommit(database_.get()) != 0) run("BEGIN");
}

void SqliteDraftStore::check(int result) {
    if (result == SQLITE_OK) return;
    sqlite3_exec(database_.get(), "ROLLBACK", nullptr, nullptr, nullptr);
    throw RuntimeError(number_of(result));
}

void SqliteDraftStore::close() {
    prepared_.clear();
    database_.reset();
}

}  // namespace machine::drafts
