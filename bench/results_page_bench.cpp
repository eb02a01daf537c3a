// A page of results must not slow down as the ledger grows: with 100,000 registrations of a user, the newest,
// the refused ones of a day and those in the middle cost as much as with 1,000.

#include "bench/ratio.h"
#include "standin/ledger.h"
#include "standin/site/routes.h"
#include "tests/support/temporary_folder.h"

#include <fstream>
#include <string>

namespace {

constexpr int SMALL = 1'000;
constexpr int LARGE = 100'000;
constexpr double LIMIT = 2;

/// The file of a ledger for one user, in which a tenth of the registrations is refused.
std::string ledger_of(int registrations) { return "ledger" + std::to_string(registrations); }

void make_ledger(int registrations) {
    const std::string path = ledger_of(registrations);
    const standin::Ledger make(path);
    standin::Database ledger(path, standin::Database::Access::write);
    standin::Transaction transaction(ledger);
    standin::Statement insert = ledger.prepare(
        "INSERT INTO registration (call, time, operation, result, user_id, data_type, submit_sequence, "
        "subject,"
        " schedule_time, callback, dest_addr_count, recipient_count, dest_addr, sms_content, "
        "attach_file_count,"
        " attach_file) VALUES (?1, datetime('2026-01-01', (?1 / 200) || ' days', (?1 % 200) || ' seconds'),"
        " 'fn_x_submit', CASE WHEN ?1 % 10 = 0 THEN 5 ELSE 1 END, 'demo', 1, 1, '회의 안내', "
        "'20260101090000',"
        " '0212345678', 100, 100, ?2, '오늘 오후 3시 회의실에서 뵙겠습니다.', 0, '')");
    std::string recipients;
    for (int i = 0; i < 100; ++i) recipients += "홍길동:0101234" + std::to_string(1000 + i) + ";";
    for (int i = 1; i <= registrations; ++i) {
        insert.bind(1, i);
        insert.bind_text(2, recipients);
        insert.step();
    }
    transaction.commit();
}

void results(benchmark::State& state, int registrations) {
    const standin::site::Sources sources{ledger_of(registrations), "carrier.ini", [] { return "2026-01"; }};
    const std::string user = "code=1&userid=demo&domain=d";
    const std::string queries[] = {user, user + "&state=refused&day=2026-01-03",
                                   user + "&before=" + std::to_string(registrations / 2)};
    for (auto _ : state) {
        for (const std::string& query : queries) {
            const auto page =
                standin::site::answer({.path = "/result", .query = query, .posted = ""}, sources);
            if (page.status != 200 || page.body.find("홍길동 외 99명") == std::string::npos)
                state.SkipWithError("no results on the page");
        }
    }
}

}  // namespace

BENCHMARK_CAPTURE(results, small, SMALL)->Repetitions(5)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(results, large, LARGE)->Repetitions(5)->Unit(benchmark::kMicrosecond);

int main(int argc, char** argv) {
    const tests::TemporaryFolder folder;
    std::ofstream("carrier.ini") << "[account demo]\npassword=p\n";
    make_ledger(SMALL);
    make_ledger(LARGE);
    benchmark::Initialize(&argc, argv);
    bench::TimeKeeper times;
    benchmark::RunSpecifiedBenchmarks(&times);
    const double ratio = times.time("results/large") / times.time("results/small");
    const char* what = "three pages of 100,000 registrations / of 1,000";
    return bench::print_ratio_at_most("results_page", ratio, what, LIMIT) ? 0 : 1;
}
