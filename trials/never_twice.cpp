// Kills the program at every file operation of the kept draft and around every call to the carrier, in jobs
// of three kinds; starts it again, takes the draft up, sends again; and holds the stand-in's ledger against
// what was asked for: nobody is sent a piece twice, nobody is forgotten, and unconfirmed are the recipients
// of the one open submit alone. Then the same with the carrier's host killed in every call, in place of the
// program.
//
// The forms, the draft's file, the carrier's host and the stand-in are the real ones; the user and the clock
// are scripted, so that a job of minutes takes a moment.
//
//     build/trials/never_twice [<most points of each kind of job>]

#include "drafts/draft_keeper.h"
#include "machine/carrier/hosted_carrier_library.h"
#include "machine/drafts/sqlite_draft_store.h"
#include "send/send_check.h"
#include "tests/support/sending.h"
#include "tests/support/temporary_folder.h"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <map>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using platform::Text;
using platform::TextView;

/// Counts the moments at which the process can be killed, and kills it at one of them.
struct Killer {
    int moments = 0;
    int deadly = 0;
    void moment() {
        if (++moments == deadly) ::kill(::getpid(), SIGKILL);
    }
};
Killer killer;

// The file operations of SQLite, each behind a moment.
sqlite3_syscall_ptr real_write, real_sync, real_unlink, real_truncate;

ssize_t moment_write(int file, const void* bytes, std::size_t size, off_t at) {
    killer.moment();
    return reinterpret_cast<ssize_t (*)(int, const void*, std::size_t, off_t)>(real_write)(file, bytes, size,
                                                                                           at);
}
int moment_sync(int file) {
    killer.moment();
    return ::fsync(file);
}
int moment_unlink(const char* path) {
    killer.moment();
    return reinterpret_cast<int (*)(const char*)>(real_unlink)(path);
}
int moment_truncate(int file, off_t size) {
    killer.moment();
    return reinterpret_cast<int (*)(int, off_t)>(real_truncate)(file, size);
}

void watch_file_operations() {
    sqlite3_vfs* vfs = sqlite3_vfs_find(nullptr);
    const auto watch = [vfs](const char* name, sqlite3_syscall_ptr& real, auto* moment) {
        real = vfs->xGetSystemCall(vfs, name);
        vfs->xSetSystemCall(vfs, name, reinterpret_cast<sqlite3_syscall_ptr>(moment));
    };
    watch("pwrite", real_write, moment_write);
    watch("pwrite64", real_write, moment_write);
    watch("unlink", real_unlink, moment_unlink);
    watch("ftruncate", real_truncate, moment_truncate);
    watch("fsync", real_sync, moment_sync);
}

/// The carrier's host, with a moment before and behind each call; or its own death in one of them.
class TriedCarrier : public machine::carrier::HostedCarrierLibrary {
  public:
    using HostedCarrierLibrary::HostedCarrierLibrary;
    std::int32_t fn_x_bind(std::int32_t one, std::string& user, std::string& password, std::string& domain,
                           std::int32_t five, Notify six, std::int32_t seven) override {
        return tried(
            [&] { return HostedCarrierLibrary::fn_x_bind(one, user, password, domain, five, six, seven); });
    }
    std::int32_t fn_x_unbind(std::string& user, std::string& password) override {
        return tried([&] { return HostedCarrierLibrary::fn_x_unbind(user, password); });
    }
    std::int32_t fn_x_money_status(std::string& user, std::string& domain, std::string& number,
                                   std::string& address, MoneyStatus& status) override {
        return tried(
            [&] { return HostedCarrierLibrary::fn_x_money_status(user, domain, number, address, status); });
    }
    std::int32_t fn_x_submit(const Submit& submit) override {
        return tried([&] { return HostedCarrierLibrary::fn_x_submit(submit); });
    }

  private:
    template <class Call>
    std::int32_t tried(Call call) {
        killer.moment();
        const std::int32_t result = call();
        killer.moment();
        return result;
    }
};

/// One of the jobs that are tried.
struct Job {
    const char* name;
    int recipients;
    int pieces;
    bool personal;
};

/// The program, with a user who confirms everything and takes up what is offered.
struct Program : tests::TestPlatform {
    explicit Program(const std::string& folder) : store(folder, "/opt/zent"), host(CARRIER_HOST) {
        form.load();
        state.session.gLoggedIn = true;
        state.session.gLoginUserId = u"demo";
        state.session.gLoginPassword = u"demo1234";
        state.session.gInfoCallback = u"021234567";
        form.choose(compose::MessageKind::text);
        desktop.any_box = platform::BoxAnswer::yes;
    }

    machine::drafts::SqliteDraftStore store;
    TriedCarrier host;
    platform::Platform machine = tests::with(platform, {.carrier = &host, .drafts = &store});
    compose::frmZent form{
        machine, state, {.send = [this] { send::check_and_send(machine, state, form, keeper); }}};
    drafts::DraftKeeper keeper{machine, form};

    void write(const Job& job) {
        Text text = job.personal ? u"{이름}" : u"";
        for (int piece = 1; piece <= job.pieces; ++piece)
            text += Text(job.pieces == 1      ? 70
                         : piece < job.pieces ? 80
                                              : 40,
                         static_cast<char16_t>(u'a' + piece));
        form.text.Check1.set_checked(job.personal);
        form.text.mText1.set_text(text);
        for (int i = 1; i <= job.recipients; ++i)
            form.recipients.add(u"n" + platform::decimal(i), u"010" + platform::decimal(10'000'000 + i), {});
    }
    /// Presses the button until nothing is left to send, as a user does whose job has failed.
    void send_all() {
        for (int tries = 0; tries < 4 && form.recipients.ListView1.checked_count() > 0; ++tries) {
            desktop.in_form<send::frmSBox>(u"frmSBox",
                                           [](send::frmSBox& box) { box.Command1.Click.raise(); });
            desktop.in_form<send::frmSendEndBox>(
                u"frmSendEndBox", [](send::frmSendEndBox& box) { box.Command2.Click.raise(); });
            form.Command1.Click.raise();
        }
    }
};

/// Runs it in a process of its own, since it may be killed. Returns whether it came to its end.
template <class Act>
bool in_child(int deadly_moment, Act act) {
    const pid_t child = ::fork();
    if (child == 0) {
        act(deadly_moment);
        std::ofstream("moments") << killer.moments;
        std::_Exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

void first_run(const std::string& folder, const Job& job, int deadly_moment) {
    Program program(folder);
    program.keeper.start();
    program.write(job);
    program.clock.run_for(3000);
    killer = {.moments = 0, .deadly = deadly_moment};
    program.send_all();
}

/// The run after it. Leaves the names of the unconfirmed recipients in a file.
void second_run(const std::string& folder) {
    Program program(folder);
    program.keeper.start();
    program.send_all();
    std::ofstream rows("rows");
    const platform::ListView& list = program.form.recipients.ListView1;
    for (std::size_t row = 0; row < list.row_count(); ++row)
        rows << tests::utf8(list.row(row).sub_item(compose::RECIPIENT_NUMBER)) << ' '
             << (list.row(row).sub_item(compose::RECIPIENT_STATUS) == gateway::NO_ANSWER) << '\n';
}

/// How often the ledger has each recipient with each text.
std::map<std::pair<std::string, std::string>, int> ledger() {
    std::map<std::pair<std::string, std::string>, int> registered;
    sqlite3* database = nullptr;
    sqlite3_stmt* rows = nullptr;
    sqlite3_open_v2("carrier-ledger.db", &database, SQLITE_OPEN_READWRITE, nullptr);
    sqlite3_prepare_v2(database, "SELECT dest_addr, sms_content FROM registration WHERE result = 1", -1,
                       &rows, nullptr);
    while (rows != nullptr && sqlite3_step(rows) == SQLITE_ROW) {
        const std::string addresses = reinterpret_cast<const char*>(sqlite3_column_text(rows, 0));
        const std::string text = reinterpret_cast<const char*>(sqlite3_column_text(rows, 1));
        for (std::size_t at = addresses.find(':'); at != std::string::npos; at = addresses.find(':', at + 1))
            ++registered[{addresses.substr(at + 1, addresses.find(';', at) - at - 1),
                          text.substr(text.size() - 8)}];
    }
    sqlite3_finalize(rows);
    sqlite3_close(database);
    return registered;
}

struct Tally {
    int points = 0, twice = 0, forgotten = 0, unconfirmed_points = 0, too_many_unconfirmed = 0;
};

void judge(const Job& job, int most_unconfirmed, Tally& tally) {
    ++tally.points;
    std::map<std::string, int> pieces;
    const auto registered = ledger();
    for (const auto& [what, count] : registered) {
        ++pieces[what.first];
        tally.twice += count > 1;
    }
    int unconfirmed = 0, listed = 0;
    std::ifstream rows("rows");
    std::string number;
    bool open = false;
    while (rows >> number >> open) {
        ++listed;
        unconfirmed += open;
        tally.forgotten += !open && pieces[number] != job.pieces;
    }
    tally.forgotten += listed != job.recipients;
    tally.unconfirmed_points += unconfirmed > 0;
    tally.too_many_unconfirmed += unconfirmed > most_unconfirmed;
}

void configure() {
    std::filesystem::copy_file(CARRIER_LIBRARY, "x_msggate_d.so");
    std::ofstream("carrier.ini") << "[account demo]\npassword=demo1234\ntype=24\nstate=1\n"
                                    "service_number=030312345678\nuser_name=홍길동\nsender_name=길동상사\n"
                                    "callback=0212345678\n";
}

int moments_of(const Job& job) {
    const tests::TemporaryFolder folder;
    configure();
    if (!in_child(0, [&](int moment) { first_run(folder.path(), job, moment); })) std::abort();
    int moments = 0;
    std::ifstream("moments") >> moments;
    return moments;
}

Tally try_job(const Job& job, int most_points) {
    Tally tally;
    const int moments = moments_of(job);
    const int step = std::max(1, moments / most_points);
    for (int moment = 1; moment <= moments; moment += step) {
        const tests::TemporaryFolder folder;
        configure();
        const bool ended = in_child(moment, [&](int deadly) { first_run(folder.path(), job, deadly); });
        if (ended || !in_child(0, [&](int) { second_run(folder.path()); }))
            std::printf("  moment %d of %d: the run %s\n", moment, moments,
                        ended ? "was not killed" : "failed");
        const Tally before = tally;
        judge(job, job.personal ? 1 : 100, tally);
        if (tally.twice + tally.forgotten + tally.too_many_unconfirmed >
            before.twice + before.forgotten + before.too_many_unconfirmed)
            std::printf("  moment %d of %d: twice %d, forgotten %d\n", moment, moments,
                        tally.twice - before.twice, tally.forgotten - before.forgotten);
    }
    return tally;
}

}  // namespace

int main(int count, char** arguments) {
    const int most_points = count > 1 ? std::max(1, std::atoi(arguments[1])) : 100'000;
    watch_file_operations();
    bool good = true;
    for (const Job& job : {Job{"1,000 in batches", 1000, 1, false}, Job{"250, three pieces", 250, 3, false},
                           Job{"20 personal, two pieces", 20, 2, true}}) {
        const Tally tally = try_job(job, most_points);
        std::printf(
            "%-26s killed at %4d moments: twice %d, forgotten %d, unconfirmed in %d, too many in %d\n",
            job.name, tally.points, tally.twice, tally.forgotten, tally.unconfirmed_points,
            tally.too_many_unconfirmed);
        std::fflush(stdout);
        good = good && tally.twice + tally.forgotten + tally.too_many_unconfirmed == 0;
    }
    return good ? 0 : 1;
}
