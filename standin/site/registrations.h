#pragma once

#include "standin/database.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace standin::site {

enum class State { all, registered, refused };

/// Which of a user's registrations are asked for.
struct Filter {
    std::string user_id;
    std::string day;  ///< yyyy-MM-dd, empty for every day
    State state = State::all;
};

/// Where a page begins: with the newest, or right behind or before a registration of the page left.
struct Place {
    enum class Kind { newest, older_than, newer_than };
    Kind kind = Kind::newest;
    std::int64_t id = 0;
};

/// A registration as a list shows it; texts are beginnings of what was sent.
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
/// Counting stops here: nobody pages that far, and a count of everything would slow every page down.
inline constexpr std::int64_t count_limit = 1000;

/// A page of registrations, newest first.
struct Listing {
    std::vector<Registration> rows;
    bool newer = false;  ///< there are some before the first row
    bool older = false;  ///< and behind the last one
    std::int64_t count =
        0;  ///< of all that the filter lets through, count_limit + 1 for more than count_limit
};

/// The page that begins at the place; what it costs does not depend on how many registrations there are.
Listing list(const Database& ledger, const Filter& filter, const Place& place);

/// The user's registration with its texts in full; nothing when it is not his.
std::optional<Registration> find(const Database& ledger, const std::string& user_id, std::int64_t id);

/// A kind of message that was registered in a month.
struct Usage {
    std::int64_t data_type = 0;
    std::int64_t recipients = 0;
};

/// What the user registered in the month (yyyy-MM), by kind.
std::vector<Usage> usage(const Database& ledger, const std::string& user_id, const std::string& month);

/// The month of the user's first registration, empty without one.
std::string first_month(const Database& ledger, const std::string& user_id);

}  // namespace standin::site
