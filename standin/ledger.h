#pragma once

#include "standin/call.h"
#include "standin/database.h"
#include "standin/submission.h"

#include <cstdint>
#include <string>

namespace standin {

/// The record of all calls, an SQLite file. A call is in it, whole, before it returns, and stays there even
/// if the process is killed. Texts are kept both as UTF-8, for people, and as the bytes that arrived.
///
/// Tables: `call`, one row for each call; `argument`, its arguments in order; `registration`, one row for
/// each submit, accepted or refused, with indexes by time, result and user.
class Ledger {
  public:
    /// Opens the file or creates it. Raises std::runtime_error when that fails.
    explicit Ledger(const std::string& path);

    /// Enters a call with its result and, for a submit, the registration. Raises std::runtime_error when it
    /// cannot be written; then none of it is in the ledger.
    void enter(const Call& call, std::int32_t result, const Submission* submission);

  private:
    void enter_argument(std::int64_t call, std::int64_t position, const Argument& argument);
    void enter_registration(std::int64_t row, const Call& call, std::int32_t result,
                            const Submission& submission);

    Database database_;
    Statement insert_call_;
    Statement insert_argument_;
    Statement insert_registration_;
};

}  // namespace standin
