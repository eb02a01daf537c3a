#pragma once

#include "standin/call.h"
#include "standin/database.h"
#include "standin/submission.h"

#include <cstdint>
#include <string>

namespace standin {

/// The book of everything that was asked of the carrier, an SQLite file. A call is in it, whole, before it
/// returns, and stays whatever happens to the process then. Texts are kept as UTF-8 to read and as the bytes
/// that came.
///
/// Tables: `call`, one row a call; `argument`, its arguments in order; `registration`, one row a submit,
/// accepted or refused, found quickly by time, by result and by user.
class Ledger {
  public:
    /// Opens the file, making it when it is missing. std::runtime_error when it cannot be had.
    explicit Ledger(const std::string& path);

    /// Enters a call with its result and, for a submit, the registration. std::runtime_error when it cannot
    /// be written, and then nothing of it is in the ledger.
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
