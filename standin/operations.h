#pragma once

#include "standin/call.h"
#include "standin/ledger.h"
#include "standin/settings.h"
#include "standin/submission.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>

namespace standin {

/// The result codes that the stand-in gives of its own accord; carrier.ini can order any other.
enum Result : std::int32_t {
    registered = 1,
    not_authenticated = 2,
    too_many_recipients = 8,
    too_many_attachments = 9,
    attachment_missing = 16,
    other_failure = 153,
};

using Notify11 = std::int32_t (*)(std::int32_t, std::int32_t, std::int32_t, std::int32_t, std::int32_t,
                                  std::int32_t, std::int32_t, std::int32_t, std::int32_t, std::int32_t,
                                  std::int32_t);

/// A text buffer of the caller that an operation fills.
struct OutBuffer {
    const char* argument;
    char* bytes;
    std::size_t size;
};

/// A number of the caller that an operation fills; a NULL is left alone.
struct OutNumber {
    const char* argument;
    std::int32_t* value;
};

/// The operations, for one process on one thread: who is bound, and what was called how often. Each takes the
/// record of its call, enters it in the ledger and returns the result code. Raises std::runtime_error when
/// the ledger or carrier.ini cannot be used. An ordered code replaces the operation's own result and
/// everything that follows from it.
class Carrier {
  public:
    /// Reads carrier.ini and opens the ledger in the current directory.
    Carrier();

    /// Reads carrier.ini again, so that orders can be given while the client runs, and calls `notify` back
    /// once.
    std::int32_t bind(Call& call, const char* user_id, const char* password, Notify11 notify,
                      OutNumber answer);
    std::int32_t unbind(Call& call, const char* user_id, const char* password);
    std::int32_t money_status(Call& call, const char* user_id, OutNumber type, OutNumber state,
                              const std::array<OutNumber, 10>& others);
    std::int32_t user_info(Call& call, const char* user_id, const std::array<OutBuffer, 4>& buffers,
                           OutNumber answer);
    std::int32_t submit(Call& call);

  private:
    std::optional<std::int32_t> begin(Call& call);
    bool password_matches(Call& call, const char* user_id, const char* password) const;
    const Account* bound_account(const char* user_id) const;
    std::int32_t verdict(const Submission& submission) const;

    Settings settings_;
    Ledger ledger_;
    std::set<std::string, std::less<>> bound_;
    std::map<std::string, std::int32_t> calls_;
};

}  // namespace standin
