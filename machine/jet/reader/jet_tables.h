#pragma once

#include "machine/jet/reader/card_schema.h"
#include "machine/jet/reader/card_stream.h"

#include <cstdint>
#include <functional>

namespace machine::jet {

/// The card manager's tables in a Jet file, as libmdb finds them. The library trusts the file, so this runs
/// in a process of its own.
class JetTables {
  public:
    /// Throws std::runtime_error, as everything here does, for a file that is not sound.
    explicit JetTables(const char* path);
    ~JetTables();
    JetTables(const JetTables&) = delete;
    JetTables& operator=(const JetTables&) = delete;

    /// Reads all rows in the file's order and returns their number, which is the one that the table itself
    /// tells. Memos stay NULL.
    std::uint32_t read(Table table, const std::function<void(const Row&)>& take_row);

  private:
    void* handle_;
};

}  // namespace machine::jet
