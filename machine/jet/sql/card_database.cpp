#include "machine/jet/sql/card_database.h"

#include "machine/jet/sql/like_pattern.h"
#include "machine/jet/sql/statement.h"
#include "machine/jet/sql/virtual_table.h"
#include "platform/error.h"

#include <cstring>
#include <limits>
#include <sqlite3.h>

namespace machine::jet {

using platform::ErrorNumber;
using platform::RuntimeError;
using platform::Text;

namespace {

/// How many fields of results are kept: the lists of several openings of the picker. The statements
/// themselves count as well.
constexpr std::size_t MOST_RESULT_FIELDS = 3'000'000;
constexpr std::size_t FIELDS_A_STATEMENT = 100;

/// Steps of SQLite between two heartbeats.
constexpr int OPCODES_A_BEAT = 1000;

int beat(void* heartbeat) {
    static_cast<Heartbeat*>(heartbeat)->beat();
    return 0;
}

/// The value's text in place. SQLite would copy it to add a NUL if it were asked for as text.
platform::TextView text_of(sqlite3_value* value) {
    const auto bytes = static_cast<std::size_t>(sqlite3_value_bytes16(value));
    return {static_cast<const char16_t*>(sqlite3_value_blob(value)), bytes / sizeof(char16_t)};
}

/// `x LIKE y` by the rules of the card manager's database; SQLite calls like(y, x).
void like(sqlite3_context* context, int, sqlite3_value** arguments) {
    if (sqlite3_value_type(arguments[0]) == SQLITE_NULL || sqlite3_value_type(arguments[1]) == SQLITE_NULL)
        return sqlite3_result_null(context);
    auto* pattern = static_cast<LikePattern*>(sqlite3_get_auxdata(context, 0));
    if (pattern == nullptr) {
        auto parsed = LikePattern::parse(text_of(arguments[0]));
        if (!parsed) return sqlite3_result_error(context, "broken pattern", -1);
        pattern = new LikePattern(std::move(*parsed));
        sqlite3_result_int(context, pattern->matches(text_of(arguments[1])));
        // SQLite keeps the pattern from row to row, or deletes it at once.
        return sqlite3_set_auxdata(context, 0, pattern,
                                   [](void* kept) { delete static_cast<LikePattern*>(kept); });
    }
    sqlite3_result_int(context, pattern->matches(text_of(arguments[1])));
}

/// Allows only reading the two tables, since what the user types becomes part of statements.
int only_reading(void*, int action, const char*, const char* function, const char*, const char*) {
    if (action == SQLITE_SELECT || action == SQLITE_READ) return SQLITE_OK;
    const bool known = action == SQLITE_FUNCTION &&
                       (sqlite3_stricmp(function, "count") == 0 || sqlite3_stricmp(function, "like") == 0);
    return known ? SQLITE_OK : SQLITE_DENY;
}

/// The type of a result's column: that of the table's column, or a number for a count.
int type_of(sqlite3_stmt* statement, int column) {
    const char* declared = sqlite3_column_decltype(statement, column);
    if (declared == nullptr || std::strcmp(declared, "INTEGER") == 0) return platform::FIELD_LONG;
    return std::strcmp(declared, "MEMO") == 0 ? platform::FIELD_MEMO : platform::FIELD_TEXT;
}

Cell cell_of(sqlite3_value* value) {
    switch (sqlite3_value_type(value)) {
        case SQLITE_NULL:
            return {};
        case SQLITE_INTEGER:
            return sqlite3_value_int(value);
        default:
            return text_of(value);
    }
}

}  // namespace

void CardDatabase::Close::operator()(sqlite3* database) const { sqlite3_close_v2(database); }
void CardDatabase::Finish::operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }

CardDatabase::CardDatabase(std::shared_ptr<Heartbeat> heartbeat) : heartbeat_(std::move(heartbeat)) {}

CardDatabase::~CardDatabase() = default;

void CardDatabase::all_added() {
    for (CardTable& table : tables_) table.all_added();

    sqlite3* opened = nullptr;
    // Only one thread uses it; locks would cost a quarter of the time.
    const int result = sqlite3_open_v2(
        ":memory:", &opened, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX, nullptr);
    database_.reset(opened);
    bool good = result == SQLITE_OK &&
                sqlite3_exec(opened, "PRAGMA encoding='UTF-16'", nullptr, nullptr, nullptr) == SQLITE_OK;
    for (const CardTable& table : tables_) good = good && attach(opened, table);
    if (!good) throw RuntimeError(ErrorNumber::out_of_memory);

    // Otherwise an unknown name in quotes would be taken for a text.
    sqlite3_db_config(opened, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    sqlite3_progress_handler(opened, OPCODES_A_BEAT, beat, heartbeat_.get());
    sqlite3_create_function(opened, "like", 2, SQLITE_UTF16 | SQLITE_DETERMINISTIC, nullptr, like, nullptr,
                            nullptr);
    sqlite3_set_authorizer(opened, only_reading, nullptr);
}

std::shared_ptr<const CardRows> CardDatabase::run(const Text& statement) {
    const auto known = results_.find(statement);
    if (known != results_.end()) return known->second;

    auto rows = fetch(statement);
    if (result_fields_ > MOST_RESULT_FIELDS) {
        results_.clear();
        result_fields_ = 0;
    }
    result_fields_ += FIELDS_A_STATEMENT + rows->fields();
    results_.emplace(statement, rows);
    return rows;
}

std::shared_ptr<const CardRows> CardDatabase::fetch(const Text& statement) {
    const Statement prepared = prepare(sqlite_statement(statement));
    if (!prepared || sqlite3_bind_parameter_count(prepared.get()) > 0)
        throw RuntimeError(ErrorNumber::broken_statement);

    const int count = sqlite3_column_count(prepared.get());
    std::vector<CardRows::Column> columns;
    columns.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        columns.push_back(
            {platform::from_utf8(sqlite3_column_name(prepared.get(), i)), type_of(prepared.get(), i)});
    }
    const auto& cards = tables_[static_cast<std::size_t>(Table::card)];
    auto rows = std::make_shared<CardRows>(std::move(columns), cards.rows());
    while (step(prepared.get())) {
        for (int i = 0; i < count; ++i) rows->add(cell_of(sqlite3_column_value(prepared.get(), i)));
        heartbeat_->beat();
    }
    return rows;
}

/// A statement followed by another one is an error.
CardDatabase::Statement CardDatabase::prepare(const Text& sql) {
    if (sql.size() > std::numeric_limits<int>::max() / sizeof(char16_t))
        throw RuntimeError(ErrorNumber::broken_statement);
    sqlite3_stmt* prepared = nullptr;
    const void* rest = nullptr;
    const int result = sqlite3_prepare16_v2(
        database_.get(), sql.data(), static_cast<int>(sql.size() * sizeof(char16_t)), &prepared, &rest);
    Statement statement(prepared);
    if (result == SQLITE_NOMEM) throw RuntimeError(ErrorNumber::out_of_memory);
    if (result != SQLITE_OK || rest != sql.data() + sql.size())
        throw RuntimeError(ErrorNumber::broken_statement);
    return statement;
}

/// Returns whether there is another row.
bool CardDatabase::step(sqlite3_stmt* statement) {
    const int result = sqlite3_step(statement);
    if (result == SQLITE_ROW) return true;
    if (result == SQLITE_NOMEM) throw RuntimeError(ErrorNumber::out_of_memory);
    if (result != SQLITE_DONE) throw RuntimeError(ErrorNumber::broken_statement);
    return false;
}

}  // namespace machine::jet
