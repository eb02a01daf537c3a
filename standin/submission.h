#pragma once

#include "standin/call.h"

#include <cstdint>
#include <optional>
#include <string>

namespace standin {

/// What a submit asks the carrier to register. Texts are cp949; fields that only fn_x_submit_2 has are
/// optional.
struct Submission {
    std::string user_id;
    std::int32_t data_type = 0;
    std::optional<std::int32_t> data_sub_type;
    std::int32_t submit_sequence = 0;
    std::string subject;
    std::string schedule_time;
    std::string callback;
    std::optional<std::int32_t> reply_flag;
    std::int32_t dest_addr_count = 0;
    std::string dest_addr;  ///< name, ":", number, ";" for each recipient
    std::string sms_content;
    std::optional<std::string> tts_content;
    std::int32_t attach_file_count = 0;
    std::string attach_file;  ///< path and ";" for each attachment
};

/// The registration that a call of fn_x_submit or fn_x_submit_2 asks for. A NULL counts as an empty text.
Submission submission_of(const Call& call);

}  // namespace standin
