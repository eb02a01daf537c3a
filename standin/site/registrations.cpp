#include "standin/site/registrations.h"

#include <algorithm>

namespace standin::site {
namespace {

/// Appended to a day or month, it sorts after every time in that day or month, since no character of a time
/// sorts after it.
constexpr const char* end_of_period = "~";

constexpr const char* listed_columns =
    "SELECT id, time, data_type, substr(subject, 1, 80), substr(CASE sms_content WHEN '' THEN"
    " ifnull(tts_content, '') ELSE sms_content END, 1, 120), substr(dest_addr, 1, 80), recipient_count,"
    " callback, schedule_time, result, ''";
constexpr const char* all_columns =
    "SELECT id, time, data_type, subject, CASE sms_content WHEN '' THEN ifnull(tts_content, '') ELSE"
    " sms_content END, dest_addr, recipient_count, callback, schedule_time, result, attach_file";

Registration registration(const Statement& row) {
    return {.id = row.number(0),
            .time = row.bytes(1),
            .data_type = row.number(2),
            .subject = row.bytes(3),
            .content = row.bytes(4),
            .recipients = row.bytes(5),
            .recipient_count = row.number(6),
            .callback = row.bytes(7),
            .schedule_time = row.bytes(8),
            .result = row.number(9),
            .attachments = row.bytes(10)};
}

std::string conditions(const Filter& filter) {
    std::string sql = " FROM registration WHERE user_id = ?1";
    if (!filter.day.empty()) {
        sql += " AND time >= ?2 AND time < ?3";
    }
    if (filter.state != State::all) {
        sql += " AND (result = 1) = ?4";
    }
    return sql;
}

void bind(Statement& statement, const Filter& filter) {
    statement.bind_text(1, filter.user_id);
    if (!filter.day.empty()) {
        statement.bind_text(2, filter.day);
        statement.bind_text(3, filter.day + end_of_period);
    }
    if (filter.state != State::all) {
        statement.bind(4, filter.state == State::registered ? 1 : 0);
    }
}

std::string time_of(const Database& ledger, std::int64_t id) {
    Statement row = ledger.prepare("SELECT time FROM registration WHERE id = ?");
    row.bind(1, id);
    return row.step() ? row.bytes(0) : std::string();
}

/// One row more than a page holds, if there are so many: it shows that the list goes on.
std::vector<Registration> rows_at(const Database& ledger, const Filter& filter, const Place& place) {
    std::string sql = listed_columns + conditions(filter);
    const bool from_newest = place.kind == Place::Kind::newest;
    const bool upwards = place.kind == Place::Kind::newer_than;
    if (!from_newest) {
        sql += upwards ? " AND time >= ?5 AND (time > ?5 OR id > ?6)"
                       : " AND time <= ?5 AND (time < ?5 OR id < ?6)";
    }
    sql += upwards ? " ORDER BY time, id LIMIT ?7" : " ORDER BY time DESC, id DESC LIMIT ?7";
    Statement statement = ledger.prepare(sql);
    bind(statement, filter);
    if (!from_newest) {
        statement.bind_text(5, time_of(ledger, place.id));
        statement.bind(6, place.id);
    }
    statement.bind(7, rows_of_a_page + 1);
    std::vector<Registration> rows;
    while (statement.step()) {
        rows.push_back(registration(statement));
    }
    return rows;
}

std::int64_t count(const Database& ledger, const Filter& filter) {
    Statement statement =
        ledger.prepare("SELECT count(*) FROM (SELECT 1" + conditions(filter) + " LIMIT ?7)");
    bind(statement, filter);
    statement.bind(7, count_limit + 1);
    return statement.step() ? statement.number(0) : 0;
}

}  // namespace

Listing list(const Database& ledger, const Filter& filter, const Place& place) {
    Listing listing;
    listing.rows = rows_at(ledger, filter, place);
    const bool more = listing.rows.size() > rows_of_a_page;
    if (more) {
        listing.rows.pop_back();
    }
    if (place.kind == Place::Kind::newer_than) {
        if (!more) {
            return list(ledger, filter, {});
        }
        std::reverse(listing.rows.begin(), listing.rows.end());
        listing.newer = listing.older = true;
    } else {
        listing.newer = place.kind == Place::Kind::older_than;
        listing.older = more;
    }
    listing.count = count(ledger, filter);
    return listing;
}

std::optional<Registration> find(const Database& ledger, const std::string& user_id, std::int64_t id) {
    Statement row =
        ledger.prepare(std::string(all_columns) + " FROM registration WHERE id = ? AND user_id = ?");
    row.bind(1, id);
    row.bind_text(2, user_id);
    return row.step() ? std::optional(registration(row)) : std::nullopt;
}

std::vector<Usage> usage(const Database& ledger, const std::string& user_id, const std::string& month) {
    // One data type at a time, so that the index skips the other months.
    Statement rows = ledger.prepare(
        "SELECT data_type, sum(recipient_count) FROM registration WHERE user_id = ? AND result = 1"
        " AND data_type IN (1, 2, 3, 5, 7) AND time >= ? AND time < ? GROUP BY data_type");
    rows.bind_text(1, user_id);
    rows.bind_text(2, month);
    rows.bind_text(3, month + end_of_period);
    std::vector<Usage> kinds;
    while (rows.step()) {
        kinds.push_back({rows.number(0), rows.number(1)});
    }
    return kinds;
}

std::string first_month(const Database& ledger, const std::string& user_id) {
    Statement row =
        ledger.prepare("SELECT substr(time, 1, 7) FROM registration WHERE user_id = ? ORDER BY time LIMIT 1");
    row.bind_text(1, user_id);
    return row.step() ? row.bytes(0) : std::string();
}

}  // namespace standin::site
