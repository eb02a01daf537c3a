// Disturbs jobs of three kinds at every point: the program killed at a file operation of the kept draft or
// around a call to the carrier, the carrier's library gone wrong in a call, a session refused, the stop
// button pressed. What is left is sent again, and the stand-in's ledger held against what was asked for:
// nobody is sent a piece twice, nobody is forgotten, and unconfirmed are the recipients of the one open
// submit alone.
//
// The forms, the draft's file, the carrier's host and the stand-in are the real ones; the user and the clock
// are scripted, so that a job of minutes takes a moment.
//
//     build/trials/never_twice [<most points of each job and disturbance> [<the one disturbance>]]

#include "tests/support/temporary_folder.h"
#include "trials/disturbances.h"
#include "trials/moments.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string_view>

namespace {

using namespace trials;

constexpr Job JOBS[] = {{.name = "1,000 in batches", .recipients = 1000, .pieces = 1, .personal = false},
                        {.name = "250, three pieces", .recipients = 250, .pieces = 3, .personal = false},
                        {.name = "20 personal, two pieces", .recipients = 20, .pieces = 2, .personal = true}};

/// A folder with the carrier's stand-in, in which the job is run and judged.
int try_point(const Job& job, const Disturbance& disturbance, int point, Tally& tally) {
    const tests::TemporaryFolder folder;
    std::filesystem::copy_file(CARRIER_LIBRARY, "x_msggate_d.so");
    std::ofstream("carrier.ini") << "[account demo]\npassword=demo1234\ntype=24\nstate=1\n"
                                    "service_number=030312345678\nuser_name=홍길동\nsender_name=길동상사\n"
                                    "callback=0212345678\n";
    const int points = disturbance.run(job, point);
    tally.unexplained += !disturbance.explains(job, judge(job, tally));
    return points;
}

Tally try_job(const Job& job, const Disturbance& disturbance, int most_points) {
    Tally tally;
    const int points = try_point(job, disturbance, 0, tally);
    tally.points = 0;
    for (int point = 1; point <= points; point += std::max(1, points / most_points)) {
        const Tally before = tally;
        try_point(job, disturbance, point, tally);
        if (tally.faults() > before.faults())
            std::printf("  %s, %s, point %d of %d: twice %d, forgotten %d, unexplained %d\n", job.name,
                        disturbance.name().c_str(), point, points, tally.twice - before.twice,
                        tally.forgotten - before.forgotten, tally.unexplained - before.unexplained);
    }
    return tally;
}

}  // namespace

int main(int count, char** arguments) {
    const int most_points = count > 1 ? std::max(1, std::atoi(arguments[1])) : 100'000;
    const std::string_view wanted = count > 2 ? arguments[2] : "";
    watch_file_operations();
    bool good = true;
    for (const auto& disturbance : disturbances()) {
        if (!wanted.empty() && disturbance->name() != wanted) continue;
        for (const Job& job : JOBS) {
            const Tally tally = try_job(job, *disturbance, most_points);
            std::printf(
                "%-24s %-16s %4d points: twice %d, forgotten %d, unconfirmed in %d, unexplained in %d\n",
                job.name, disturbance->name().c_str(), tally.points, tally.twice, tally.forgotten,
                tally.unconfirmed, tally.unexplained);
            std::fflush(stdout);
            good = good && tally.points > 0 && tally.faults() == 0;
        }
    }
    return good ? 0 : 1;
}
