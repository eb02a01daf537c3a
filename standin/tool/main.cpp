#include "standin/database.h"
#include "standin/settings.h"
#include "standin/tool/table.h"

#include <algorithm>
#include <exception>
#include <iostream>
#include <string>
#include <string_view>

namespace standin {
namespace {

constexpr std::size_t content_columns = 40;
constexpr const char* usage = "사용법: carrier-ledger [--calls] [--db 파일]\n";

struct Options {
    bool calls = false;
    std::string ledger;
};

std::string cell(const Statement& row, int column) { return printable(row.bytes(column)); }

std::string first_line(const std::string& text) {
    return shortened(printable(text.substr(0, text.find_first_of("\r\n"))), content_columns);
}

void print_registrations(const Database& ledger) {
    Table table;
    table.add({"번호", "시각", "작업", "종류", "제목", "예약", "회신번호", "수신자", "내용", "첨부", "결과"});
    Statement rows = ledger.prepare(
        "SELECT id, time, operation, data_type || ifnull('/' || data_sub_type, ''), subject, schedule_time, "
        "callback,"
        " dest_addr_count, CASE sms_content WHEN '' THEN ifnull(tts_content, '') ELSE sms_content END, "
        "attach_file,"
        " result FROM registration ORDER BY id");
    while (rows.step()) {
        table.add({cell(rows, 0), cell(rows, 1), cell(rows, 2), cell(rows, 3), cell(rows, 4), cell(rows, 5),
                   cell(rows, 6), cell(rows, 7), first_line(rows.bytes(8)), cell(rows, 9), cell(rows, 10)});
    }
    table.print(std::cout);
}

void print_arguments(const Database& ledger, std::int64_t call) {
    Table table;
    Statement rows = ledger.prepare(
        "SELECT position, name, CASE kind WHEN 'text' THEN ifnull('\"' || text || '\"', 'NULL')"
        " ELSE ifnull(number, text) END, ifnull('-> ' || answer, ''), note FROM argument WHERE call = ?"
        " ORDER BY position");
    rows.bind(1, call);
    while (rows.step()) {
        table.add({cell(rows, 0), cell(rows, 1), cell(rows, 2), cell(rows, 3), cell(rows, 4)});
    }
    table.print(std::cout, "    ");
}

void print_calls(const Database& ledger) {
    Statement rows = ledger.prepare("SELECT id, time, operation, process, nth, result FROM call ORDER BY id");
    while (rows.step()) {
        std::cout << cell(rows, 0) << "  " << cell(rows, 1) << "  " << cell(rows, 2) << "  [" << cell(rows, 3)
                  << "] " << cell(rows, 4) << "번째  결과 " << cell(rows, 5) << '\n';
        print_arguments(ledger, rows.number(0));
    }
}

/// Returns false for arguments that it does not understand.
bool read_options(int count, char** arguments, Options& options) {
    for (int i = 1; i < count; ++i) {
        const std::string_view argument = arguments[i];
        if (argument == "--calls") {
            options.calls = true;
        } else if (argument == "--db" && i + 1 < count) {
            options.ledger = arguments[++i];
        } else {
            return false;
        }
    }
    return true;
}

int print_ledger(const Options& options) {
    const std::string path = options.ledger.empty() ? read_settings("carrier.ini").ledger : options.ledger;
    const Database ledger(path, Database::Access::read);
    options.calls ? print_calls(ledger) : print_registrations(ledger);
    return 0;
}

}  // namespace
}  // namespace standin

int main(int count, char** arguments) {
    standin::Options options;
    if (!standin::read_options(count, arguments, options)) {
        std::cerr << standin::usage;
        return 2;
    }
    try {
        return standin::print_ledger(options);
    } catch (const std::exception& error) {
        std::cerr << "carrier-ledger: " << error.what() << '\n';
        return 1;
    }
}
