#pragma once

#include "standin/database.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace standin::site {

enum class State { all, registered, refused };

/// Which of a user's registrations to list.
struct Filter {
    std::string user_id;
    std::string day;  ///< yyyy-MM-dd, empty for every day
    State state = State::all;
};

/// Where a page begins: with the newest, or directly after or before a registration of the previous page.
struct Place {
    enum class Kind { newest, older_than, newer_than };
    Kind kind = Kind::newest;
    std::int64_t id = 0;
};

/// A registration as a list shows it; only the beginnings of its texts.
struct Registration {
    std::int64_t id = 0;
    std::string time;
    std::int64_t data_type = 0;
    std::string subject;
    std::string content;
    std::string recipients;  ///< name, ":", number, ";" for each
    std::int64_t recipient_count = 0;
    std::string callback;
    std::string schedule_time;
    std::int64_t result = 0;
    std::string attachments;
};

inline constexpr int rows_of_a_page = 20;
/// Counting stops here: nobody pages so far, and counting everything would slow every page down.
inline constexpr std::int64_t count_limit = 1000;

/// A page of registrations, newest first.
struct Listing {
    std::vector<Registration> rows;
    bool newer = false;      ///< there are newer ones before the first row
    bool older = false;      ///< there are older ones after the last row
    std::int64_t count = 0;  ///< of all that pass the filter; count_limit + 1 stands for more
};

/// The page that begins at the place. Its cost does not depend on the number of registrations.
Listing list(const Database& ledger, const Filter& filter, const Place& place);

/// The user's registration with its texts in full; nothing when it belongs to another user.
std::optional<Registration> find(const Database& ledger, const std::string& user_id, std::int64_t id);

/// What was registered with one data type in a month.
struct Usage {
    std::int64_t data_type = 0;
    std::int64_t recipients = 0;
};

/// What the user registered in the month (yyyy-MM), by data type.
std::vector<Usage> usage(const Database& ledger, const std::string& user_id, const std::string& month);

/// The month of the user's first registration; empty when there is none.
std::string first_month(const Database& ledger, const std::string& user_id);

}  // namespace standin::site
