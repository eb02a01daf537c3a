#pragma once

#include "machine/jet/heartbeat.h"
#include "machine/jet/sql/card_rows.h"
#include "machine/jet/sql/card_table.h"

#include <array>
#include <cstddef>
#include <memory>
#include <unordered_map>

struct sqlite3;
struct sqlite3_stmt;

namespace machine::jet {

/// The card manager's two tables in memory, and the statements on them.
class CardDatabase {
  public:
    explicit CardDatabase(std::shared_ptr<Heartbeat> heartbeat);
    ~CardDatabase();
    CardDatabase(const CardDatabase&) = delete;
    CardDatabase& operator=(const CardDatabase&) = delete;

    /// Rows are added in the file's order, all before the first statement.
    void add(Table table, const Row& row) { tables_[static_cast<std::size_t>(table)].add(row); }
    void all_added();

    /// Runs the statement, or returns the kept result of an earlier run. Raises RuntimeError for a statement
    /// with an error, one that names something unknown or one that does more than read.
    std::shared_ptr<const CardRows> run(const platform::Text& statement);

  private:
    struct Close {
        void operator()(sqlite3* database) const;
    };
    struct Finish {
        void operator()(sqlite3_stmt* statement) const;
    };
    using Statement = std::unique_ptr<sqlite3_stmt, Finish>;

    std::shared_ptr<const CardRows> fetch(const platform::Text& statement);
    Statement prepare(const platform::Text& sql);
    bool step(sqlite3_stmt* statement);

    std::shared_ptr<Heartbeat> heartbeat_;
    std::array<CardTable, 2> tables_{CardTable(Table::folder), CardTable(Table::card)};
    std::unique_ptr<sqlite3, Close> database_;
    std::unordered_map<platform::Text, std::shared_ptr<const CardRows>> results_;
    std::size_t result_fields_ = 0;
};

}  // namespace machine::jet
