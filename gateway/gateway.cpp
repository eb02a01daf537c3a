#include "gateway/gateway.h"

#include "core/boxes.h"
#include "core/busy.h"
#include "platform/error.h"
#include "platform/text/cp949.h"

#include <array>
#include <string>

namespace gateway {

using platform::CarrierCallback;
using platform::Text;

namespace {

template <class Function>
CarrierCallback callback(Function* function) {
    return reinterpret_cast<CarrierCallback>(function);
}

/// Passes the variables as bytes of cp949 and reads back what the library left in them. It rewrites inputs
/// too.
template <std::size_t N, class Call>
Int with_texts(const std::array<Text*, N>& texts, Call call) {
    std::array<std::string, N> bytes;
    for (std::size_t i = 0; i < N; ++i) bytes[i] = platform::encode_cp949(*texts[i]);
    const Int result = call(bytes);
    for (std::size_t i = 0; i < N; ++i) *texts[i] = platform::decode_cp949(bytes[i]);
    return result;
}

platform::TextView meaning_of(std::int32_t code) {
    switch (code) {
        case 1:
            return REGISTERED;
        case 2:
            return u"Pondira에 인증실패";
        case 3:
            return u"폰디라 데이터 전송에러";
        case 4:
            return u"아직 지원되지 않는 함수";
        case 5:
            return u"Pondira 접속에러";
        case 6:
            return u"Pondira 응답 없음";
        case 7:
            return u"FTP/HTTP 전송에러";
        case 8:
            return u"착신자수초과";
        case 9:
            return u"첨부파일갯수초과";
        case 16:
            return u"첨부파일없음";
        case 153:
            return u"기타에러";
        default:
            return u"알수없는에러";
    }
}

}  // namespace

Int GATEWAY_NOTIFY_6(Int, Int, Int, Int, Int, Int) { return 1; }
Int GATEWAY_NOTIFY_8(Int, Int, Int, Int, Int, Int, Int, Int) { return 1; }
Int GATEWAY_NOTIFY_11(Int, Int, Int, Int, Int, Int, Int, Int, Int, Int, Int) { return 1; }

Text GATEWAY_RESULT_TEXT(Int code) {
    Text text(meaning_of(code));
    if (code == 1) return text;
    return u"등록실패X" + platform::decimal(code) + u"(" + text + u")";
}

Text CLEAN_FIXED_TEXT(platform::TextView text) {
    return platform::right_trim(platform::blanks_for_nul(Text(text)));
}

template <class Call>
bool Gateway::exchange(Call call) {
    try {
        const core::BusyPointer busy(platform_.desktop);
        return call() == 1;
    } catch (const platform::RuntimeError& error) {
        core::show_error(platform_.desktop, error, platform::BoxIcon::critical);
        return false;
    }
}

bool Gateway::GATEWAY_BIND(int mode) {
    return exchange([&] {
        const CarrierCallback notify = mode == 1 ? callback(GATEWAY_NOTIFY_8) : callback(GATEWAY_NOTIFY_6);
        return with_texts(std::array{&state_.session.gLoginUserId, &state_.session.gLoginPassword,
                                     &state_.session.gServiceDomain},
                          [&](auto& t) {
                              return platform_.carrier.fn_x_bind(1, t[0], t[1], t[2], 1, notify, 0,
                                                                 callback(GATEWAY_NOTIFY_11));
                          });
    });
}

bool Gateway::GATEWAY_UNBIND() {
    return exchange([&] {
        return with_texts(std::array{&state_.session.gLoginUserId, &state_.session.gLoginPassword},
                          [&](auto& t) { return platform_.carrier.fn_x_unbind(t[0], t[1]); });
    });
}

bool Gateway::GATEWAY_MONEY_STATUS() {
    return exchange([&] {
        platform::CarrierLibrary::MoneyStatus status{.field1 = state_.session.gMoneyField1,
                                                     .service_type = state_.session.gServiceType,
                                                     .service_state = state_.session.gServiceState,
                                                     .field4 = state_.session.gMoneyField4,
                                                     .field5 = state_.session.gMoneyField5};
        const Int result = with_texts(
            std::array{&state_.session.gLoginUserId, &state_.session.gServiceDomain,
                       &state_.session.gServiceNumber, &state_.session.gClientAddress},
            [&](auto& t) { return platform_.carrier.fn_x_money_status(t[0], t[1], t[2], t[3], status); });
        state_.session.gMoneyField1 = status.field1;
        state_.session.gServiceType = status.service_type;
        state_.session.gServiceState = status.service_state;
        state_.session.gMoneyField4 = status.field4;
        state_.session.gMoneyField5 = status.field5;
        return result;
    });
}

bool Gateway::GATEWAY_USER_INFO() {
    state_.session.gInfoServiceNumber.assign(20, u' ');
    state_.session.gInfoUserName.assign(40, u' ');
    state_.session.gInfoSenderName.assign(40, u' ');
    state_.session.gInfoCallback.assign(20, u' ');
    return exchange([&] {
        return with_texts(std::array{&state_.session.gLoginUserId, &state_.session.gServiceDomain,
                                     &state_.session.gServiceNumber, &state_.session.gClientAddress,
                                     &state_.session.gInfoServiceNumber, &state_.session.gInfoUserName,
                                     &state_.session.gInfoSenderName, &state_.session.gInfoCallback},
                          [&](auto& t) {
                              return platform_.carrier.fn_x_user_info(t[0], t[1], t[2], t[3], t[4], t[5],
                                                                      t[6], t[7]);
                          });
    });
}

Text Gateway::UMS_SEND_START(const UmsMessage& message) {
    using platform::encode_cp949;
    platform::CarrierLibrary::Submit submit{
        .s_data_type = message.s_data_type,
        .s_data_sub_type = message.s_data_sub_type,
        .user_id = encode_cp949(state_.session.gLoginUserId),
        .service_domain = encode_cp949(state_.session.gServiceDomain),
        .service_number = encode_cp949(state_.session.gServiceNumber),
        .client_address = encode_cp949(state_.session.gClientAddress),
        .submit_sequence = state_.session.gSubmitSequence,
        .s_subject = encode_cp949(message.s_subject),
        .s_schedule_time = encode_cp949(message.s_schedule_time),
        .s_callback = encode_cp949(message.s_callback),
        .s_reply_flag = message.s_reply_flag,
        .s_dest_addr_count = message.s_dest_addr_count,
        .s_dest_addr = encode_cp949(message.s_dest_addr),
        .s_sms_content = encode_cp949(message.s_sms_content),
        .s_tts_content = encode_cp949(message.s_tts_content),
        .s_attach_file_count = message.s_attach_file_count,
        .s_attach_file = encode_cp949(platform::lower_case(message.s_attach_file)),
    };
    try {
        const core::BusyPointer busy(platform_.desktop);
        return GATEWAY_RESULT_TEXT(message.SMSIndex == 1 ? platform_.carrier.fn_x_submit_2(submit)
                                                         : platform_.carrier.fn_x_submit(submit));
    } catch (const platform::RuntimeError& error) {
        return u"등록실패-" + platform::decimal(error.number());
    }
}

}  // namespace gateway
