#include "standin/operations.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <exception>

#define CARRIER_EXPORT extern "C" __attribute__((visibility("default")))

namespace standin {
namespace {

/// The callback with six or with eight arguments: the client chooses which, and neither is called.
using Notify = void (*)();

/// The process's carrier, made at the first call.
Carrier& the_carrier() {
    static Carrier carrier;
    return carrier;
}

/// Runs an operation. A failure of the stand-in itself (no ledger, a faulty carrier.ini) becomes a result
/// code, since no exception may reach the client.
template <typename Operation>
std::int32_t run(Operation operation) {
    try {
        return operation(the_carrier());
    } catch (const std::exception& error) {
        std::fprintf(stderr, "carrier: %s\n", error.what());
        return other_failure;
    }
}

}  // namespace
}  // namespace standin

CARRIER_EXPORT std::int32_t fn_x_bind(std::int32_t argument_1, char* user_id, char* password,
                                      char* service_domain, std::int32_t argument_5, standin::Notify notify,
                                      std::int32_t argument_7, standin::Notify11 notify_11,
                                      std::int32_t* argument_9) {
    return standin::run([&](standin::Carrier& carrier) {
        standin::Call call("fn_x_bind");
        call.number("argument_1", argument_1)
            .text("user_id", user_id)
            .password("password", password)
            .text("service_domain", service_domain)
            .number("argument_5", argument_5)
            .callback("notify", notify != nullptr)
            .number("argument_7", argument_7)
            .callback("notify_11", notify_11 != nullptr)
            .pointer("argument_9", argument_9);
        return carrier.bind(call, user_id, password, notify_11, {"argument_9", argument_9});
    });
}

CARRIER_EXPORT std::int32_t fn_x_unbind(char* user_id, char* password) {
    return standin::run([&](standin::Carrier& carrier) {
        standin::Call call("fn_x_unbind");
        call.text("user_id", user_id).password("password", password);
        return carrier.unbind(call, user_id, password);
    });
}

CARRIER_EXPORT std::int32_t fn_x_money_status(char* user_id, char* service_domain, char* service_number,
                                              char* client_address, std::int32_t* field_1, std::int32_t* type,
                                              std::int32_t* state, std::int32_t* field_4,
                                              std::int32_t* field_5, std::int32_t* field_6,
                                              std::int32_t* field_7, std::int32_t* field_8,
                                              std::int32_t* field_9, std::int32_t* field_10,
                                              std::int32_t* field_11, std::int32_t* field_12) {
    return standin::run([&](standin::Carrier& carrier) {
        standin::Call call("fn_x_money_status");
        call.text("user_id", user_id)
            .text("service_domain", service_domain)
            .text("service_number", service_number)
            .text("client_address", client_address)
            .pointer("field_1", field_1)
            .pointer("service_type", type)
            .pointer("service_state", state)
            .pointer("field_4", field_4)
            .pointer("field_5", field_5)
            .pointer("field_6", field_6)
            .pointer("field_7", field_7)
            .pointer("field_8", field_8)
            .pointer("field_9", field_9)
            .pointer("field_10", field_10)
            .pointer("field_11", field_11)
            .pointer("field_12", field_12);
        return carrier.money_status(call, user_id, {"service_type", type}, {"service_state", state},
                                    {{{"field_1", field_1},
                                      {"field_4", field_4},
                                      {"field_5", field_5},
                                      {"field_6", field_6},
                                      {"field_7", field_7},
                                      {"field_8", field_8},
                                      {"field_9", field_9},
                                      {"field_10", field_10},
                                      {"field_11", field_11},
                                      {"field_12", field_12}}});
    });
}

CARRIER_EXPORT std::int32_t fn_x_user_info(char* user_id, char* service_domain, char* service_number,
                                           char* client_address, char* info_service_number,
                                           char* info_user_name, char* info_sender_name, char* info_callback,
                                           std::int32_t* argument_9) {
    return standin::run([&](standin::Carrier& carrier) {
        const std::array<standin::OutBuffer, 4> buffers = {{{"info_service_number", info_service_number, 20},
                                                            {"info_user_name", info_user_name, 40},
                                                            {"info_sender_name", info_sender_name, 40},
                                                            {"info_callback", info_callback, 20}}};
        standin::Call call("fn_x_user_info");
        call.text("user_id", user_id)
            .text("service_domain", service_domain)
            .text("service_number", service_number)
            .text("client_address", client_address);
        for (const standin::OutBuffer& buffer : buffers) {
            call.buffer(buffer.argument, buffer.bytes, buffer.size);
        }
        call.pointer("argument_9", argument_9);
        return carrier.user_info(call, user_id, buffers, {"argument_9", argument_9});
    });
}

CARRIER_EXPORT std::int32_t fn_x_submit(std::int32_t data_type, char* user_id, char* service_domain,
                                        char* service_number, char* client_address,
                                        std::int32_t submit_sequence, char* subject, char* schedule_time,
                                        char* callback, std::int32_t dest_addr_count, char* dest_addr,
                                        char* sms_content, std::int32_t attach_file_count,
                                        char* attach_file) {
    return standin::run([&](standin::Carrier& carrier) {
        standin::Call call("fn_x_submit");
        call.number("data_type", data_type)
            .text("user_id", user_id)
            .text("service_domain", service_domain)
            .text("service_number", service_number)
            .text("client_address", client_address)
            .number("submit_sequence", submit_sequence)
            .text("subject", subject)
            .text("schedule_time", schedule_time)
            .text("callback", callback)
            .number("dest_addr_count", dest_addr_count)
            .text("dest_addr", dest_addr)
            .text("sms_content", sms_content)
            .number("attach_file_count", attach_file_count)
            .text("attach_file", attach_file);
        return carrier.submit(call);
    });
}

CARRIER_EXPORT std::int32_t fn_x_submit_2(std::int32_t data_type, std::int32_t data_sub_type,
                                          std::int32_t argument_3, char* user_id, char* service_domain,
                                          char* service_number, char* client_address,
                                          std::int32_t submit_sequence, char* subject, char* schedule_time,
                                          char* callback, std::int32_t reply_flag,
                                          std::int32_t dest_addr_count, char* dest_addr, char* sms_content,
                                          char* tts_content, std::int32_t attach_file_count,
                                          char* attach_file) {
    return standin::run([&](standin::Carrier& carrier) {
        standin::Call call("fn_x_submit_2");
        call.number("data_type", data_type)
            .number("data_sub_type", data_sub_type)
            .number("argument_3", argument_3)
            .text("user_id", user_id)
            .text("service_domain", service_domain)
            .text("service_number", service_number)
            .text("client_address", client_address)
            .number("submit_sequence", submit_sequence)
            .text("subject", subject)
            .text("schedule_time", schedule_time)
            .text("callback", callback)
            .number("reply_flag", reply_flag)
            .number("dest_addr_count", dest_addr_count)
            .text("dest_addr", dest_addr)
            .text("sms_content", sms_content)
            .text("tts_content", tts_content)
            .number("attach_file_count", attach_file_count)
            .text("attach_file", attach_file);
        return carrier.submit(call);
    });
}
