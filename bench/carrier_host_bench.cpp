// A job must not become slower because the carrier's library is in a process of its own. The library answers
// at once. The pauses, which nobody waits for here, are counted with the length that they have for the user:
// without them a job would be a few milliseconds of work, to which the way to the host and back adds some
// microseconds a call.

#include "bench/ratio.h"
#include "machine/carrier/host/loaded_library.h"
#include "machine/carrier/hosted_carrier_library.h"
#include "tests/support/sending.h"
#include "tests/support/temporary_folder.h"

#include <chrono>
#include <cmath>
#include <filesystem>
#include <numeric>
#include <string>

namespace {

using namespace machine::carrier;

constexpr int ROWS = 10'000;
constexpr int ROUNDS = 15;
constexpr double LIMIT = 1.1;

/// The library loaded into this process, for a job of texts.
class DirectLibrary : public platform::CarrierLibrary {
  public:
    std::int32_t fn_x_bind(std::int32_t one, std::string& user_id, std::string& password, std::string& domain,
                           std::int32_t five, Notify six, std::int32_t seven) override {
        return run(
            {Export::bind, {one, five, static_cast<std::int32_t>(six), seven}, {user_id, password, domain}});
    }
    std::int32_t fn_x_unbind(std::string& user_id, std::string& password) override {
        return run({Export::unbind, {}, {user_id, password}});
    }
    std::int32_t fn_x_money_status(std::string& user_id, std::string& domain, std::string& number,
                                   std::string& address, MoneyStatus& status) override {
        status.service_state = 0;
        return run({Export::money_status, {0, 0, 0, 0, 0}, {user_id, domain, number, address}});
    }
    std::int32_t fn_x_user_info(std::string&, std::string&, std::string&, std::string&, std::string&,
                                std::string&, std::string&, std::string&) override {
        return 0;
    }
    std::int32_t fn_x_submit(const Submit& s) override {
        return run({Export::submit,
                    {s.s_data_type, s.submit_sequence, s.s_dest_addr_count, s.s_attach_file_count},
                    {s.user_id, s.service_domain, s.service_number, s.client_address, s.s_subject,
                     s.s_schedule_time, s.s_callback, s.s_dest_addr, s.s_sms_content, s.s_attach_file}});
    }
    std::int32_t fn_x_submit_2(const Submit&) override { return 0; }

  private:
    std::int32_t run(const Call& call) { return library_.run(call, copies_).result; }

    LoadedLibrary library_{{}};
    WipedBytes copies_;
};

/// The time from the click of the send button to the report, in seconds.
struct Taken {
    double work = 1e9;
    double pauses = 0;

    double all() const { return work + pauses; }
};

/// Runs a job and keeps the shorter work, which is the less disturbed one.
void send_job(platform::CarrierLibrary& carrier, Taken& taken) {
    tests::Sending sending;
    sending.carrier.real = &carrier;
    sending.add_many(ROWS);
    const auto started = std::chrono::steady_clock::now();
    sending.send();
    const std::chrono::duration<double> work = std::chrono::steady_clock::now() - started;
    if (sending.form.recipients.ListView1.checked_count() != 0) std::abort();
    const auto& pauses = sending.clock.pauses;
    taken = {std::min(taken.work, work.count()), std::accumulate(pauses.begin(), pauses.end(), 0) / 1000.0};
}

}  // namespace

int main() {
    const tests::TemporaryFolder folder;
    std::filesystem::copy_file(INSTANT_LIBRARY, folder.path() / "x_msggate_d.so");
    DirectLibrary direct;
    HostedCarrierLibrary hosted(CARRIER_HOST);
    Taken with_direct, with_hosted;
    // In turn, so that both meet the same disturbances.
    for (int round = 0; round < ROUNDS; ++round) {
        send_job(direct, with_direct);
        send_job(hosted, with_hosted);
    }
    const auto rounded = [](double number) { return std::to_string(std::lround(number)); };
    const std::string what =
        "a job over 10000 rows with the host / with the library loaded directly; pauses " +
        rounded(with_direct.pauses) + " s, work " + rounded(with_hosted.work * 1e6) + " / " +
        rounded(with_direct.work * 1e6) + " us";
    const double ratio = with_hosted.all() / with_direct.all();
    return bench::print_ratio_at_most("carrier_host", ratio, what.c_str(), LIMIT) ? 0 : 1;
}
