#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <sqlite3.h>
#include <string>
#include <string_view>

namespace standin {

/// A prepared statement. Parameters and columns count from 1 and 0, as SQLite counts them.
/// Every failure is a std::runtime_error in SQLite's own words.
class Statement {
  public:
    Statement(sqlite3* database, std::string_view sql);

    void bind(int parameter, std::optional<std::int64_t> number);
    void bind_text(int parameter, const std::optional<std::string>& text);
    void bind_bytes(int parameter, const std::optional<std::string>& bytes);

    /// Goes to the next row. Returns false when there is none; the statement is then ready for new
    /// parameters.
    bool step();

    int columns() const;
    std::int64_t number(int column) const;
    /// A text or blob column's bytes, empty for NULL.
    std::string bytes(int column) const;

  private:
    struct Finalize {
        void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
    };
    void check(int code) const;

    std::unique_ptr<sqlite3_stmt, Finalize> statement_;
};

/// An open database file. Every failure is a std::runtime_error in SQLite's own words.
class Database {
  public:
    enum class Access { read, write };

    /// Opens the file. A missing one is created if it is to be written.
    Database(const std::string& path, Access access);

    void execute(const char* sql);
    Statement prepare(std::string_view sql) const;
    std::int64_t last_row() const;

  private:
    struct Close {
        void operator()(sqlite3* database) const { sqlite3_close(database); }
    };

    std::unique_ptr<sqlite3, Close> database_;
};

/// A write transaction, rolled back unless committed.
class Transaction {
  public:
    explicit Transaction(Database& database);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    void commit();

  private:
    Database& database_;
    bool open_ = true;
};

}  // namespace standin
