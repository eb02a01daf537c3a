#pragma once

#include <cstdint>
#include <string>

namespace platform {

/// A function that the carrier's library may call; how many 32-bit arguments it takes stands where it is
/// passed.
using CarrierCallback = void (*)();

/// The six exports of the carrier's closed client library, arguments in the library's own order.
///
/// The library may write into its arguments: it gets a copy of each text's bytes (cp949), and afterwards the
/// copy's bytes, as many as the text had, replace the text. An out buffer is a text of the buffer's length.
/// Each call raises RuntimeError 48 when the library is missing or cannot be loaded, and 453 when it lacks
/// the export.
class CarrierLibrary {
  public:
    virtual ~CarrierLibrary() = default;

    struct MoneyStatus {
        std::int32_t field1 = 0;
        std::int32_t service_type = 0;
        std::int32_t service_state = 0;
        std::int32_t field4 = 0;
        std::int32_t field5 = 0;
    };

    /// The arguments of both submits.
    struct Submit {
        std::int32_t s_data_type = 0;
        std::int32_t s_data_sub_type = 0;
        std::string user_id;
        std::string service_domain;
        std::string service_number;
        std::string client_address;
        std::int32_t submit_sequence = 0;
        std::string s_subject;
        std::string s_schedule_time;
        std::string s_callback;
        std::int32_t s_reply_flag = 0;
        std::int32_t s_dest_addr_count = 0;
        std::string s_dest_addr;
        std::string s_sms_content;
        std::string s_tts_content;
        std::int32_t s_attach_file_count = 0;
        std::string s_attach_file;
    };

    virtual std::int32_t fn_x_bind(std::int32_t argument1, std::string& user_id, std::string& password,
                                   std::string& service_domain, std::int32_t argument5,
                                   CarrierCallback argument6, std::int32_t argument7,
                                   CarrierCallback argument8) = 0;
    virtual std::int32_t fn_x_unbind(std::string& user_id, std::string& password) = 0;
    virtual std::int32_t fn_x_money_status(std::string& user_id, std::string& service_domain,
                                           std::string& service_number, std::string& client_address,
                                           MoneyStatus& status) = 0;
    virtual std::int32_t fn_x_user_info(std::string& user_id, std::string& service_domain,
                                        std::string& service_number, std::string& client_address,
                                        std::string& info_service_number, std::string& info_user_name,
                                        std::string& info_sender_name, std::string& info_callback) = 0;
    /// Plain text messages: `s_data_sub_type`, `s_reply_flag` and `s_tts_content` are not passed.
    virtual std::int32_t fn_x_submit(Submit& submit) = 0;
    virtual std::int32_t fn_x_submit_2(Submit& submit) = 0;
};

}  // namespace platform
