#pragma once

#include "drafts/draft_keeper.h"
#include "machine/carrier/hosted_carrier_library.h"
#include "machine/drafts/sqlite_draft_store.h"
#include "send/send_check.h"
#include "tests/support/sending.h"

#include <cstddef>
#include <string>

namespace trials {

/// One of the jobs that are tried.
struct Job {
    const char* name;
    int recipients;
    int pieces;
    bool personal;
};

/// The carrier's host, with a moment before and behind each call.
class TriedCarrier : public machine::carrier::HostedCarrierLibrary {
  public:
    TriedCarrier();
    std::int32_t fn_x_bind(std::int32_t one, std::string& user, std::string& password, std::string& domain,
                           std::int32_t five, Notify six, std::int32_t seven) override;
    std::int32_t fn_x_unbind(std::string& user, std::string& password) override;
    std::int32_t fn_x_money_status(std::string& user, std::string& domain, std::string& number,
                                   std::string& address, MoneyStatus& status) override;
    std::int32_t fn_x_submit(const Submit& submit) override;

    int binds = 0;
};

/// The program, with a user who confirms everything and takes up what is offered.
struct Program : tests::TestPlatform {
    Program();

    machine::drafts::SqliteDraftStore store;
    TriedCarrier host;
    platform::Platform machine = tests::with(platform, {.carrier = &host, .drafts = &store});
    compose::frmZent form{
        machine, state, {.send = [this] { send::check_and_send(machine, state, form, keeper); }}};
    drafts::DraftKeeper keeper{machine, form};

    void write(const Job& job);
    /// The user will press the stop button in the n-th pause of the next job, counted from 1.
    void stop_at_pause(std::size_t n);
    /// Presses the button until nothing is left to send, as a user does whose job has failed.
    void send_all();
    /// Leaves a file with the number of each recipient and whether he is unconfirmed.
    void leave_rows() const;

    /// The user is going to close the next report; a job that fails has none.
    bool report_awaited = false;
};

}  // namespace trials
