#pragma once

#include "platform/text/text.h"

#include <cstdint>
#include <memory>
#include <variant>

namespace platform {

/// Types of a field, numbered as the card manager's database provider numbers them.
inline constexpr int FIELD_LONG = 3;
inline constexpr int FIELD_TEXT = 202;
inline constexpr int FIELD_MEMO = 203;

/// One field of the current record; NULL is std::monostate.
struct CardField {
    int type = FIELD_TEXT;
    std::variant<std::monostate, std::int32_t, Text> value;
};

/// The rows that a statement returned. The first is the current one after opening.
class CardRecordset {
  public:
    virtual ~CardRecordset() = default;

    virtual int record_count() const = 0;
    virtual bool end_of_file() const = 0;
    /// Raises RuntimeError 3021 after the last row.
    virtual void move_next() = 0;
    /// The field of that name, in any case, of the current record. Raises RuntimeError 3265 for a name that
    /// the statement does not select, and 3021 after the last row.
    virtual CardField field(TextView name) const = 0;
};

inline constexpr int CONNECTION_CLOSED = 0;
inline constexpr int CONNECTION_OPEN = 1;

/// A connection to the card database. Its destructor closes it.
class CardConnection {
  public:
    virtual ~CardConnection() = default;

    /// CONNECTION_OPEN or CONNECTION_CLOSED.
    virtual int state() const = 0;
    virtual void close() = 0;
    /// Runs a statement unchanged. Raises RuntimeError for a faulty statement and on a closed connection.
    virtual std::unique_ptr<CardRecordset> open_recordset(const Text& statement) = 0;
};

/// The card manager's database. It is only ever read.
class CardSource {
  public:
    virtual ~CardSource() = default;

    /// Opens what the connection string names ("Data Source", "Jet OLEDB:Database Password"). While the file
    /// is read, windows stay painted but input waits. Raises RuntimeError when the file is missing or damaged
    /// or the password is wrong.
    virtual std::unique_ptr<CardConnection> connect(const Text& connection_string) = 0;
};

}  // namespace platform
