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
#include <vector>

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
    "CREATE TABLE draft(id INTEGER PRIMARY KEY, turn INTEGER, written INTEGER, at_rest INTEGER);"
    "CREATE TABLE field(draft INTEGER, name TEXT, value TEXT, PRIMARY KEY(draft, name)) WITHOUT ROWID;"
    "CREATE TABLE recipient(draft INTEGER, row INTEGER, name TEXT, number TEXT, status TEXT, title TEXT,"
    " pieces TEXT, checked INTEGER, PRIMARY KEY(draft, row)) WITHOUT ROWID;";

/// The most bytes of one value: a text of the user is far below, a damaged file may say anything.
constexpr int VALUE_LIMIT = 64 << 20;

/// How many drafts are kept: a user who passes one over may come back for it some days later.
constexpr const char* TOO_OLD = "SELECT id FROM draft ORDER BY turn DESC LIMIT -1 OFFSET 5";

/// FNV-1a, the same in every run.
std::string hash_of(const std::string& text) {
    std::uint64_t hash = 0xcbf29ce484222325U;
    for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001b3U;
    char digits[17];
    std::snprintf(digits, sizeof digits, "%016llx", static_cast<unsigned long long>(hash));
    return digits;
}

}  // namespace

void SqliteDraftStore::Close::operator()(sqlite3* database) const { sqlite3_close_v2(database); }
void SqliteDraftStore::Finish::operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }

SqliteDraftStore::SqliteDraftStore(std::string folder, const std::string& application_directory)
    : folder_(std::move(folder)), file_(folder_ + "/draft-" + hash_of(application_directory) + ".db") {}

SqliteDraftStore::~SqliteDraftStore() = default;

void SqliteDraftStore::open() {
    if (database_) return;
    posix::make_private_folder(folder_);
    {
        // SQLite gives its other files the permissions of this one. It is closed before SQLite opens it:
        // closing a file lets go of all locks that the process has on it.
        const posix::FileDescriptor file(
            ::open(file_.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, S_IRUSR | S_IWUSR));
        if (!file.is_open()) throw RuntimeError(ErrorNumber::permission_denied);
        ::fchmod(file.number(), S_IRUSR | S_IWUSR);
    }
    sqlite3* database = nullptr;
    const int result = sqlite3_open_v2(file_.c_str(), &database, SQLITE_OPEN_READWRITE, nullptr);
    database_.reset(database);
    try {
        check(database, result);
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
        check(database_.get(), sqlite3_exec(database_.get(), TABLES, nullptr, nullptr, nullptr));
        run("COMMIT");
    }
    Statement newest = statement("SELECT max(id) FROM draft");
    present_ = (newest.next_row() ? newest.number(0) : 0) + 1;
}

std::optional<KeptDraft> SqliteDraftStore::next() {
    open();
    KeptDraft draft;
    {
        Statement found = statement(
            "SELECT id, turn, written, at_rest FROM draft WHERE turn < ? ORDER BY turn DESC LIMIT 1");
        if (!found.bind(offered_turn_).next_row()) return std::nullopt;
        offered_ = found.number(0);
        offered_turn_ = found.number(1);
        draft.written = platform::LocalTime(std::chrono::seconds(found.number(2)));
        draft.at_rest = found.number(3) != 0;
    }
    Statement fields = statement("SELECT name, value FROM field WHERE draft = ?");
    fields.bind(offered_);
    while (fields.next_row()) draft.fields.emplace(fields.text(0), fields.text(1));
    return draft;
}

void SqliteDraftStore::read_recipients(const std::function<void(KeptRecipient)>& read) {
    open();
    Statement rows = statement(
        "SELECT name, number, status, title, pieces, checked FROM recipient WHERE draft = ? ORDER BY row");
    rows.bind(offered_);
    while (rows.next_row()) {
        read({.name = rows.text(0),
              .number = rows.text(1),
              .status = rows.text(2),
              .title = rows.text(3),
              .pieces = rows.text(4),
              .checked = rows.number(5) != 0});
    }
}

void SqliteDraftStore::take_up() {
    // At once, so that a kill before the next commit leaves this draft to be offered, not the replaced one.
    if (sqlite3_get_autocommit(database_.get()) == 0) run("ROLLBACK");
    statement("UPDATE draft SET turn = (SELECT max(turn) + 1 FROM draft) WHERE id = ?").bind(offered_).run();
    if (present_ != offered_) replaced_ = std::exchange(present_, offered_);
}

void SqliteDraftStore::decline() {
    statement("UPDATE draft SET at_rest = 1 WHERE id = ?").bind(offered_).run();
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
        "INSERT INTO draft(id, turn, written, at_rest)"
        " VALUES(?, (SELECT coalesce(max(turn), 0) + 1 FROM draft), ?, ?) ON CONFLICT DO UPDATE SET"
        " turn = excluded.turn, written = excluded.written, at_rest = excluded.at_rest")
        .bind(present_)
        .bind(now.time_since_epoch().count())
        .bind(at_rest ? 1 : 0)
        .run();
    if (replaced_ != 0) remove(replaced_);
    std::vector<std::int64_t> too_old;
    for (Statement found = statement(TOO_OLD); found.next_row();) too_old.push_back(found.number(0));
    for (const std::int64_t draft : too_old) remove(draft);
    run("COMMIT");
    replaced_ = 0;
}

void SqliteDraftStore::remove(std::int64_t draft) {
    for (const char* sql : {"DELETE FROM draft WHERE id = ?", "DELETE FROM field WHERE draft = ?",
                            "DELETE FROM recipient WHERE draft = ?"})
        statement(sql).bind(draft).run();
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

Statement SqliteDraftStore::statement(const char* sql) {
    auto& prepared = prepared_[sql];
    if (!prepared) {
        sqlite3_stmt* made = nullptr;
        check(database_.get(),
              sqlite3_prepare_v3(database_.get(), sql, -1, SQLITE_PREPARE_PERSISTENT, &made, nullptr));
        prepared.reset(made);
    }
    return Statement(prepared.get());
}

void SqliteDraftStore::begin() {
    open();
    // Outside a transaction each statement would be one of its own.
    if (sqlite3_get_autocommit(database_.get()) != 0) run("BEGIN");
}

void SqliteDraftStore::close() {
    prepared_.clear();
    database_.reset();
    offered_turn_ = std::numeric_limits<std::int64_t>::max();
    replaced_ = 0;
}

}  // namespace machine::drafts
