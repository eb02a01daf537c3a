#include "trials/verdict.h"

#include <algorithm>
#include <fstream>
#include <map>
#include <sqlite3.h>
#include <utility>

namespace trials {

namespace {

/// The end of a text, in which the jobs' pieces differ.
std::string end_of(const std::string& text) {
    return text.substr(text.size() - std::min<std::size_t>(text.size(), 8));
}

/// How often each recipient is registered with each text.
std::map<std::pair<std::string, std::string>, int> ledger() {
    std::map<std::pair<std::string, std::string>, int> registered;
    sqlite3* database = nullptr;
    sqlite3_stmt* rows = nullptr;
    sqlite3_open_v2("carrier-ledger.db", &database, SQLITE_OPEN_READWRITE, nullptr);
    sqlite3_prepare_v2(database, "SELECT dest_addr, sms_content FROM registration WHERE result = 1", -1,
                       &rows, nullptr);
    while (rows != nullptr && sqlite3_step(rows) == SQLITE_ROW) {
        const std::string text = end_of(reinterpret_cast<const char*>(sqlite3_column_text(rows, 1)));
        for (const std::string& number :
             numbers_of(reinterpret_cast<const char*>(sqlite3_column_text(rows, 0))))
            ++registered[{number, text}];
    }
    sqlite3_finalize(rows);
    sqlite3_close(database);
    return registered;
}

}  // namespace

Numbers numbers_of(std::string_view addresses) {
    Numbers numbers;
    for (std::size_t at = addresses.find(':'); at != std::string_view::npos; at = addresses.find(':', at + 1))
        numbers.emplace(addresses.substr(at + 1, addresses.find(';', at) - at - 1));
    return numbers;
}

Numbers judge(const Job& job, Tally& tally) {
    ++tally.points;
    std::map<std::string, int> pieces;
    for (const auto& [what, count] : ledger()) {
        ++pieces[what.first];
        tally.twice += count > 1;
    }
    Numbers unconfirmed;
    int listed = 0;
    std::ifstream rows("rows");
    std::string number;
    bool open = false;
    while (rows >> number >> open) {
        ++listed;
        if (open) unconfirmed.insert(number);
        tally.forgotten += !open && pieces[number] != job.pieces;
    }
    tally.forgotten += listed != job.recipients;
    tally.unconfirmed += !unconfirmed.empty();
    return unconfirmed;
}

}  // namespace trials
