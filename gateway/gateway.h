#pragma once

#include "core/app_state.h"
#include "platform/ports/platform.h"

#include <cstdint>

namespace gateway {

/// What a row shows for a recipient that has been registered. The send job counts successes by it.
inline constexpr platform::TextView REGISTERED = u"등록성공";

/// What a row shows for a recipient whose registration was asked for and never answered: it may have been
/// made or not, so it counts as neither.
inline constexpr platform::TextView NO_ANSWER = u"확인필요";

/// What that means for the user.
inline constexpr platform::TextView NO_ANSWER_MEANS =
    u"'확인필요'는 등록 요청을 보냈으나 응답을 받지 못한 받는사람입니다. 발송결과에서 확인하신 후, 등록되지 "
    u"않았으면 다시 선택하여 보내십시오.";

/// The carrier's result code for the user: the word of success for 1, otherwise the code with its meaning.
platform::Text GATEWAY_RESULT_TEXT(std::int32_t code);

/// A text out of one of the carrier's padded buffers: NULs become blanks, blanks at the end go.
platform::Text CLEAN_FIXED_TEXT(platform::TextView text);

/// One registration as the send job prepares it; the fields are the carrier's.
struct UmsMessage {
    /// 1 is sent by fn_x_submit_2, everything else by fn_x_submit, which takes no sub-type, reply flag
    /// or TTS text.
    int SMSIndex = 0;
    std::int32_t s_data_type = 0;
    std::int32_t s_data_sub_type = 0;
    platform::Text s_subject;
    /// 14 digits, year to minute and two zeros.
    platform::Text s_schedule_time;
    platform::Text s_callback;
    std::int32_t s_reply_flag = 0;
    std::int32_t s_dest_addr_count = 0;
    /// Name, ":", number, ";" for each recipient.
    platform::Text s_dest_addr;
    platform::Text s_sms_content;
    platform::Text s_tts_content;
    std::int32_t s_attach_file_count = 0;
    /// Each path with a ";" behind it.
    platform::Text s_attach_file;
};

/// The carrier's operations as the forms use them, over the session's shared variables.
///
/// A session with the library is short: it is bound for one exchange and unbound at its end. The wrappers
/// return true only when the library returned 1; an error on the way is shown in a box and counts as false.
class Gateway {
  public:
    Gateway(platform::Platform& platform, core::AppState& state) : platform_(platform), state_(state) {}

    /// Mode 1 is for every kind of message but plain text.
    bool GATEWAY_BIND(int mode);
    bool GATEWAY_UNBIND();
    /// Fills `gServiceType` and `gServiceState`.
    bool GATEWAY_MONEY_STATUS();
    /// Fills the four `gInfo` variables; what the library does not fill is blank afterwards.
    bool GATEWAY_USER_INFO();

    /// Registers a message. Returns "등록성공", the text of the carrier's refusal, NO_ANSWER, or for another
    /// error on the way "등록실패-" with its number: no box, the job goes on.
    platform::Text UMS_SEND_START(const UmsMessage& message);

  private:
    template <class Call>
    bool exchange(Call call);

    platform::Platform& platform_;
    core::AppState& state_;
};

}  // namespace gateway
