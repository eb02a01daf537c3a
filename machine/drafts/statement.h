#pragma once

#include "platform/text/text.h"

#include <cstdint>

struct sqlite3;
struct sqlite3_stmt;

namespace machine::drafts {

/// Raises the RuntimeError for a result of SQLite that is a failure, and drops what has not been committed.
void check(sqlite3* database, int result);

/// A prepared statement in use: values are bound in their order, and it is ready for the next use afterwards.
class Statement {
  public:
    explicit Statement(sqlite3_stmt* statement) : statement_(statement) {}
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;
    ~Statement();

    /// The text has to live until the statement has run.
    Statement& bind(platform::TextView text);
    Statement& bind(std::int64_t number);

    bool next_row();
    /// Runs it to its end.
    void run();

    // Values of the present row.
    platform::Text text(int column) const;
    std::int64_t number(int column) const;

  private:
    void check(int result) const;

    sqlite3_stmt* statement_;
    int bound_ = 0;
};

}  // namespace machine::drafts
