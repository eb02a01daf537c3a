#pragma once

#include "platform/ports/carrier_library.h"
#include "platform/text/text.h"

#include <cstdint>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace tests {

/// A carrier that records its calls and gives the answers that the test sets.
class RecordingCarrier : public platform::CarrierLibrary {
  public:
    /// A submit as it arrived, with its texts decoded.
    struct Registration {
        bool submit_2 = false;
        int s_data_type = 0;
        int s_data_sub_type = 0;
        platform::Text user_id, service_domain, service_number, client_address;
        int submit_sequence = 0;
        platform::Text s_subject, s_schedule_time, s_callback;
        int s_reply_flag = 0;
        int s_dest_addr_count = 0;
        platform::Text s_dest_addr, s_sms_content, s_tts_content;
        int s_attach_file_count = 0;
        platform::Text s_attach_file;
    };

    // The account.
    int service_type = 23;
    int service_state = 0;
    std::string info_service_number = "030312345678";
    std::string info_user_name = "Hong";
    std::string info_sender_name = "Hong Office";
    std::string info_callback = "0212345678";

    /// The result of an operation's n-th call, counted from 1; everything else succeeds with 1.
    std::map<std::pair<std::string, int>, std::int32_t> results;
    /// Operations that the library lacks.
    std::set<std::string> missing;
    /// Operations that never answer, and how long the last of them was waited for.
    std::set<std::string> silent;
    std::chrono::milliseconds waited{};
    /// If set, it answers in this one's place, and nothing is recorded.
    platform::CarrierLibrary* real = nullptr;
    /// Run at every submit, before its answer, and at every other call.
    std::function<void()> at_submit;
    std::function<void()> at_call;
    /// Whether the texts of a call come back overwritten, as a library may do.
    bool scribbles = false;

    /// The names of the operations in the order of the calls.
    std::vector<std::string> calls;
    std::vector<Registration> registrations;
    platform::Text bound_user, bound_password;
    /// The texts of all calls except submits, as bytes; the numbers and the callback of the last bind.
    std::vector<std::string> arguments;
    std::vector<std::int32_t> bind_numbers;
    Notify notify = Notify::six;

    int count(const std::string& operation) const;

    std::int32_t fn_x_bind(std::int32_t one, std::string& user_id, std::string& password, std::string& domain,
                           std::int32_t five, Notify six, std::int32_t seven) override;
    std::int32_t fn_x_unbind(std::string& user_id, std::string& password) override;
    std::int32_t fn_x_money_status(std::string& user_id, std::string& domain, std::string& number,
                                   std::string& address, MoneyStatus& status) override;
    std::int32_t fn_x_user_info(std::string& user_id, std::string& domain, std::string& number,
                                std::string& address, std::string& service_number, std::string& user_name,
                                std::string& sender_name, std::string& callback) override;
    std::int32_t fn_x_submit(const Submit& submit) override;
    std::int32_t fn_x_submit_2(const Submit& submit) override;

  private:
    void take(std::initializer_list<std::string*> texts);
    std::int32_t result(const std::string& operation);
    void record(const Submit& submit, bool submit_2);
};

}  // namespace tests
