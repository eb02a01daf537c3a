#include "tests/support/recording_carrier.h"

#include "platform/error.h"
#include "platform/text/cp949.h"

#include <algorithm>

namespace tests {

using platform::decode_cp949;

namespace {

/// Fills the buffer as a C library does: the text and a NUL; the bytes after it stay.
void fill(std::string& buffer, const std::string& text) {
    buffer.replace(0, text.size(), text);
    if (text.size() < buffer.size()) buffer[text.size()] = '\0';
}

}  // namespace

int RecordingCarrier::count(const std::string& operation) const {
    return static_cast<int>(std::ranges::count(calls, operation));
}

std::int32_t RecordingCarrier::result(const std::string& operation) {
    if (missing.contains(operation)) throw platform::RuntimeError(platform::ErrorNumber::no_such_export);
    calls.push_back(operation);
    if (silent.contains(operation)) {
        constexpr std::chrono::milliseconds SLICE{500};
        for (waited = SLICE; waits_on(waited);) waited += SLICE;
        throw platform::NoAnswer();
    }
    const auto ordered = results.find({operation, count(operation)});
    return ordered == results.end() ? 1 : ordered->second;
}

void RecordingCarrier::take(std::initializer_list<std::string*> texts) {
    if (at_call) at_call();
    for (std::string* text : texts) {
        arguments.push_back(*text);
        if (scribbles && !text->empty()) text->front() = '#';
    }
}

std::int32_t RecordingCarrier::fn_x_bind(std::int32_t one, std::string& user_id, std::string& password,
                                         std::string& domain, std::int32_t five, Notify six,
                                         std::int32_t seven) {
    if (real != nullptr) return real->fn_x_bind(one, user_id, password, domain, five, six, seven);
    bound_user = decode_cp949(user_id);
    bound_password = decode_cp949(password);
    bind_numbers = {one, five, seven};
    notify = six;
    take({&user_id, &password, &domain});
    return result("bind");
}

std::int32_t RecordingCarrier::fn_x_unbind(std::string& user_id, std::string& password) {
    if (real != nullptr) return real->fn_x_unbind(user_id, password);
    take({&user_id, &password});
    return result("unbind");
}

std::int32_t RecordingCarrier::fn_x_money_status(std::string& user_id, std::string& domain,
                                                 std::string& number, std::string& address,
                                                 MoneyStatus& status) {
    if (real != nullptr) return real->fn_x_money_status(user_id, domain, number, address, status);
    take({&user_id, &domain, &number, &address});
    const std::int32_t code = result("money_status");
    if (code == 1) {
        status.service_type = service_type;
        status.service_state = service_state;
        // Fields without a known meaning, each with a value of its own.
        status.field1 = 11;
        status.field4 = 44;
        status.field5 = 55;
    }
    return code;
}

std::int32_t RecordingCarrier::fn_x_user_info(std::string& user_id, std::string& domain, std::string& number,
                                              std::string& address, std::string& service_number,
                                              std::string& user_name, std::string& sender_name,
                                              std::string& callback) {
    take({&user_id, &domain, &number, &address});
    arguments.insert(arguments.end(), {service_number, user_name, sender_name, callback});
    const std::int32_t code = result("user_info");
    if (code == 1) {
        fill(service_number, info_service_number);
        fill(user_name, info_user_name);
        fill(sender_name, info_sender_name);
        fill(callback, info_callback);
    }
    return code;
}

std::int32_t RecordingCarrier::fn_x_submit(const Submit& submit) {
    if (real != nullptr) return real->fn_x_submit(submit);
    record(submit, false);
    return result("submit");
}

std::int32_t RecordingCarrier::fn_x_submit_2(const Submit& submit) {
    if (real != nullptr) return real->fn_x_submit_2(submit);
    record(submit, true);
    return result("submit_2");
}

void RecordingCarrier::record(const Submit& submit, bool submit_2) {
    if (at_submit) at_submit();
    registrations.push_back({.submit_2 = submit_2,
                             .s_data_type = submit.s_data_type,
                             .s_data_sub_type = submit.s_data_sub_type,
                             .user_id = decode_cp949(submit.user_id),
                             .service_domain = decode_cp949(submit.service_domain),
                             .service_number = decode_cp949(submit.service_number),
                             .client_address = decode_cp949(submit.client_address),
                             .submit_sequence = submit.submit_sequence,
                             .s_subject = decode_cp949(submit.s_subject),
                             .s_schedule_time = decode_cp949(submit.s_schedule_time),
                             .s_callback = decode_cp949(submit.s_callback),
                             .s_reply_flag = submit.s_reply_flag,
                             .s_dest_addr_count = submit.s_dest_addr_count,
                             .s_dest_addr = decode_cp949(submit.s_dest_addr),
                             .s_sms_content = decode_cp949(submit.s_sms_content),
                             .s_tts_content = decode_cp949(submit.s_tts_content),
                             .s_attach_file_count = submit.s_attach_file_count,
                             .s_attach_file = decode_cp949(submit.s_attach_file)});
}

}  // namespace tests
