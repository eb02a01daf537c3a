#pragma once

#include "machine/jet/reader/card_schema.h"
#include "machine/jet/reader/card_stream.h"

#include <cstdint>
#include <functional>

namespace machine::jet {

/// Reads the card manager's tables in a Jet file with libmdb. The library trusts the file, so this runs in a
/// separate process.
class JetTables {
  public:
    /// Throws std::runtime_error for a damaged file, as does everything here.
    explicit JetTables(const char* path);
    ~JetTables();
    JetTables(const JetTables&) = delete;
    JetTables& operator=(const JetTables&) = delete;

    /// Reads all rows in the file's order and returns their number, after comparing it with the table's own
    /// count. Memos stay NULL.
    std::uint32_t read(Table table, const std::function<void(const Row&)>& take_row);

  private:
    void* handle_;
};

}  // namespace machine::jet
