#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace standin {

/// A subscriber. Texts are cp949, as they go to the client.
struct Account {
    std::string password;
    std::int32_t type = 23;  ///< type of service contract
    std::int32_t state = 0;  ///< below 2 the service may be used
    std::string service_number;
    std::string user_name;
    std::string sender_name;
    std::string callback;
};

/// A message in a subscriber's inbox. Texts are UTF-8: only the service's pages use them.
struct Received {
    std::string time;  ///< yyyy-MM-dd HH:mm
    std::string kind;
    std::string sender;
    std::string size;
    std::string title;
};

/// What a recipient costs by kind of message, and the basic charge of a month, in won.
struct Prices {
    std::int32_t monthly = 2000;
    std::int32_t text = 25;
    std::int32_t text_plus = 80;
    std::int32_t voice = 60;
    std::int32_t fax = 50;
};

/// A result code to return instead of the operation's own, from the `first` to the `last` call.
struct Order {
    std::string operation;
    std::int32_t first = 1;
    std::int32_t last = 1;
    std::int32_t result = 0;
};

/// How the out buffers of fn_x_user_info are spoilt.
struct BufferFaults {
    bool no_nul = false;       ///< filled to the end, without a NUL
    std::int32_t overrun = 0;  ///< so many bytes past the buffer's end are written too
};

/// The contents of carrier.ini.
struct Settings {
    std::string ledger = "carrier-ledger.db";
    std::map<std::string, Account, std::less<>> accounts;               ///< by id
    std::map<std::string, std::vector<Received>, std::less<>> inboxes;  ///< by id, in UTF-8 as in the file
    Prices prices;
    std::int32_t recipient_limit = 100;
    std::int32_t attachment_limit = 5;
    std::vector<Order> orders;
    BufferFaults buffer_faults;
    std::map<std::string, std::int32_t, std::less<>> delays;  ///< milliseconds by operation

    /// The account of that id, NULL when there is none.
    const Account* account(std::string_view user_id) const;
    /// The code ordered for the nth call of the operation; of several orders the first one in the file holds.
    std::optional<std::int32_t> ordered_result(std::string_view operation, std::int32_t nth) const;
    /// Milliseconds that the operation takes.
    std::int32_t delay(std::string_view operation) const;
};

/// Reads the file (UTF-8). A missing file gives settings without accounts, so that nobody can bind. Raises
/// std::runtime_error with file and line for a line that it does not understand: with a misspelt order
/// ignored, a test would pass wrongly.
Settings read_settings(const std::string& path);

}  // namespace standin
