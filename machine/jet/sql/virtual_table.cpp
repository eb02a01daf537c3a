#include "machine/jet/sql/virtual_table.h"

#include <limits>
#include <new>
#include <sqlite3.h>
#include <string>

// A virtual table of SQLite, which reads the rows in place: copying them into tables of its own would take as
// long as reading the file. The routines are named as in SQLite's documentation.

namespace machine::jet {

namespace {

struct VirtualTable : sqlite3_vtab {
    const CardTable* cards;
};

struct Cursor : sqlite3_vtab_cursor {
    RowNumbers rows;
    std::size_t at = 0;
};

/// The ways to go through a table; xBestIndex passes one to xFilter.
enum Way { in_file_order, in_order, of_folder };

const CardTable& cards_of(sqlite3_vtab* table) { return *static_cast<VirtualTable*>(table)->cards; }

std::string declaration_of(Table table) {
    constexpr const char* TYPES[] = {" INTEGER", " TEXT", " MEMO"};
    std::string columns;
    for (const Column& column : columns_of(table)) {
        columns +=
            (columns.empty() ? "" : ",") + std::string(column.name) + TYPES[static_cast<int>(column.kind)];
    }
    return "CREATE TABLE t(" + columns + ")";
}

int connect(sqlite3* database, void* cards, int, const char* const*, sqlite3_vtab** table, char**) {
    const auto* card_table = static_cast<const CardTable*>(cards);
    const int result = sqlite3_declare_vtab(database, declaration_of(card_table->table()).c_str());
    if (result != SQLITE_OK) return result;
    auto* made = new (std::nothrow) VirtualTable{{}, card_table};
    *table = made;
    return made != nullptr ? SQLITE_OK : SQLITE_NOMEM;
}

int disconnect(sqlite3_vtab* table) {
    delete static_cast<VirtualTable*>(table);
    return SQLITE_OK;
}

/// Chooses the best way through the table for the statement.
int best_index(sqlite3_vtab* table, sqlite3_index_info* info) {
    const CardTable& cards = cards_of(table);
    const auto rows = static_cast<double>(cards.rows()->size());
    info->idxNum = in_file_order;
    info->estimatedCost = rows + 1;
    info->estimatedRows = static_cast<sqlite3_int64>(rows) + 1;

    for (int i = 0; i < info->nConstraint; ++i) {
        const auto& constraint = info->aConstraint[i];
        if (!constraint.usable || constraint.op != SQLITE_INDEX_CONSTRAINT_EQ ||
            constraint.iColumn != static_cast<int>(cards.folder_column())) {
            continue;
        }
        info->idxNum = of_folder;
        // SQLite checks the rows itself again, so that a value that is no whole number finds nothing.
        info->aConstraintUsage[i].argvIndex = 1;
        info->estimatedCost = rows / 100 + 1;
        info->estimatedRows = static_cast<sqlite3_int64>(rows) / 100 + 1;
        break;
    }
    const bool wants_order = info->nOrderBy == 1 && !info->aOrderBy[0].desc &&
                             info->aOrderBy[0].iColumn == static_cast<int>(cards.order_column());
    if (wants_order && info->idxNum == in_file_order) info->idxNum = in_order;
    info->orderByConsumed = wants_order;
    return SQLITE_OK;
}

int open(sqlite3_vtab*, sqlite3_vtab_cursor** cursor) {
    *cursor = new (std::nothrow) Cursor{};
    return *cursor != nullptr ? SQLITE_OK : SQLITE_NOMEM;
}

int close(sqlite3_vtab_cursor* cursor) {
    delete static_cast<Cursor*>(cursor);
    return SQLITE_OK;
}

RowNumbers rows_of_folder(const CardTable& cards, sqlite3_value* folder) {
    const sqlite3_int64 number = sqlite3_value_int64(folder);
    const bool possible = sqlite3_value_numeric_type(folder) != SQLITE_NULL &&
                          number >= std::numeric_limits<std::int32_t>::min() &&
                          number <= std::numeric_limits<std::int32_t>::max();
    return possible ? cards.of_folder(static_cast<std::int32_t>(number)) : RowNumbers();
}

int filter(sqlite3_vtab_cursor* sqlite_cursor, int way, const char*, int, sqlite3_value** arguments) {
    auto* cursor = static_cast<Cursor*>(sqlite_cursor);
    const CardTable& cards = cards_of(cursor->pVtab);
    cursor->at = 0;
    cursor->rows = way == of_folder  ? rows_of_folder(cards, arguments[0])
                   : way == in_order ? cards.in_order()
                                     : cards.in_file_order();
    return SQLITE_OK;
}

int next(sqlite3_vtab_cursor* cursor) {
    ++static_cast<Cursor*>(cursor)->at;
    return SQLITE_OK;
}

int is_at_end(sqlite3_vtab_cursor* sqlite_cursor) {
    const auto* cursor = static_cast<Cursor*>(sqlite_cursor);
    return cursor->at >= cursor->rows.size();
}

int column(sqlite3_vtab_cursor* sqlite_cursor, sqlite3_context* context, int number) {
    const auto* cursor = static_cast<Cursor*>(sqlite_cursor);
    const Cell cell =
        cards_of(cursor->pVtab).rows()->at(cursor->rows[cursor->at], static_cast<std::size_t>(number));
    if (const auto* value = std::get_if<std::int32_t>(&cell)) {
        sqlite3_result_int(context, *value);
    } else if (const auto* text = std::get_if<platform::TextView>(&cell)) {
        sqlite3_result_text16(context, text->data(), static_cast<int>(text->size() * sizeof(char16_t)),
                              SQLITE_STATIC);
    }
    return SQLITE_OK;
}

int row_id(sqlite3_vtab_cursor* sqlite_cursor, sqlite3_int64* id) {
    const auto* cursor = static_cast<Cursor*>(sqlite_cursor);
    *id = cursor->rows[cursor->at];
    return SQLITE_OK;
}

sqlite3_module module_of_tables() {
    sqlite3_module module{};
    module.xCreate = connect;
    module.xConnect = connect;
    module.xBestIndex = best_index;
    module.xDisconnect = disconnect;
    module.xDestroy = disconnect;
    module.xOpen = open;
    module.xClose = close;
    module.xFilter = filter;
    module.xNext = next;
    module.xEof = is_at_end;
    module.xColumn = column;
    module.xRowid = row_id;
    return module;
}

}  // namespace

bool attach(sqlite3* database, const CardTable& table) {
    static const sqlite3_module module = module_of_tables();
    const std::string name(name_of(table.table()));
    const std::string creation = "CREATE VIRTUAL TABLE " + name + " USING " + name;
    return sqlite3_create_module(database, name.c_str(), &module, const_cast<CardTable*>(&table)) ==
               SQLITE_OK &&
           sqlite3_exec(database, creation.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK;
}

}  // namespace machine::jet
