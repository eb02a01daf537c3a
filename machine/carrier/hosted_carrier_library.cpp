#include "machine/carrier/hosted_carrier_library.h"

#include "machine/carrier/frame_socket.h"
#include "platform/error.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace machine::carrier {

using platform::ErrorNumber;
using platform::NoAnswer;
using platform::RuntimeError;
using std::chrono::steady_clock;

namespace {

/// What holds for the length of a call: no other one begins, and its frames do not outlive it.
class CallScope {
  public:
    CallScope(bool& calling, WipedBytes& frame) : calling_(calling), frame_(frame) { calling_ = true; }
    CallScope(const CallScope&) = delete;
    CallScope& operator=(const CallScope&) = delete;
    ~CallScope() {
        calling_ = false;
        frame_.wipe();
    }

  private:
    bool& calling_;
    WipedBytes& frame_;
};

void raise_load_error(Outcome outcome, Export which) {
    if (outcome == Outcome::no_library) {
        throw RuntimeError(ErrorNumber::library_not_loaded,
                           u"DLL을 로드하는 중 오류가 발생했습니다: x_msggate_d.so");
    }
    if (outcome == Outcome::no_export) {
        throw RuntimeError(ErrorNumber::no_such_export, u"x_msggate_d.so에서 " +
                                                            platform::from_ascii(shape_of(which).name) +
                                                            u" 함수를 찾을 수 없습니다.");
    }
}

}  // namespace

HostedCarrierLibrary::HostedCarrierLibrary(std::string host, std::function<void()> keep_alive)
    : program_(std::move(host)), keep_alive_(std::move(keep_alive)) {}

std::int32_t HostedCarrierLibrary::fn_x_bind(std::int32_t argument1, std::string& user_id,
                                             std::string& password, std::string& service_domain,
                                             std::int32_t argument5, Notify argument6,
                                             std::int32_t argument7) {
    Call call{.which = Export::bind,
              .numbers = {argument1, argument5, static_cast<std::int32_t>(argument6), argument7},
              .texts = {user_id, password, service_domain}};
    return run(call, {&user_id, &password, &service_domain});
}

std::int32_t HostedCarrierLibrary::fn_x_unbind(std::string& user_id, std::string& password) {
    Call call{.which = Export::unbind, .numbers = {}, .texts = {user_id, password}};
    return run(call, {&user_id, &password});
}

std::int32_t HostedCarrierLibrary::fn_x_money_status(std::string& user_id, std::string& service_domain,
                                                     std::string& service_number, std::string& client_address,
                                                     MoneyStatus& status) {
    Call call{
        .which = Export::money_status,
        .numbers = {status.field1, status.service_type, status.service_state, status.field4, status.field5},
        .texts = {user_id, service_domain, service_number, client_address}};
    const std::int32_t result = run(call, {&user_id, &service_domain, &service_number, &client_address});
    const auto& left = call.numbers;
    status = {.field1 = left[0],
              .service_type = left[1],
              .service_state = left[2],
              .field4 = left[3],
              .field5 = left[4]};
    return result;
}

std::int32_t HostedCarrierLibrary::fn_x_user_info(std::string& user_id, std::string& service_domain,
                                                  std::string& service_number, std::string& client_address,
                                                  std::string& info_service_number,
                                                  std::string& info_user_name, std::string& info_sender_name,
                                                  std::string& info_callback) {
    Call call{.which = Export::user_info,
              .numbers = {},
              .texts = {user_id, service_domain, service_number, client_address, info_service_number,
                        info_user_name, info_sender_name, info_callback}};
    return run(call, {&user_id, &service_domain, &service_number, &client_address, &info_service_number,
                      &info_user_name, &info_sender_name, &info_callback});
}

std::int32_t HostedCarrierLibrary::fn_x_submit(const Submit& s) {
    return submit(
        {.which = Export::submit,
         .numbers = {s.s_data_type, s.submit_sequence, s.s_dest_addr_count, s.s_attach_file_count},
         .texts = {s.user_id, s.service_domain, s.service_number, s.client_address, s.s_subject,
                   s.s_schedule_time, s.s_callback, s.s_dest_addr, s.s_sms_content, s.s_attach_file}});
}

std::int32_t HostedCarrierLibrary::fn_x_submit_2(const Submit& s) {
    return submit({.which = Export::submit_2,
                   .numbers = {s.s_data_type, s.s_data_sub_type, s.submit_sequence, s.s_reply_flag,
                               s.s_dest_addr_count, s.s_attach_file_count},
                   .texts = {s.user_id, s.service_domain, s.service_number, s.client_address, s.s_subject,
                             s.s_schedule_time, s.s_callback, s.s_dest_addr, s.s_sms_content, s.s_tts_content,
                             s.s_attach_file}});
}

std::int32_t HostedCarrierLibrary::run(Call& call, std::initializer_list<std::string*> texts) {
    // What keeps the windows painted must not let another call in.
    if (calling_) throw RuntimeError(ErrorNumber::invalid_call);
    const CallScope scope(calling_, frame_);
    if (!write_call(call, frame_)) throw RuntimeError(ErrorNumber::overflow);
    if (host_ && !host_->is_ready()) host_.reset();
    if (!host_ && call.which == Export::unbind) return 0;
    if (!host_) host_.emplace(program_);
    const auto answer = exchange_frames() ? parse_answer(payload_of(frame_), call) : std::nullopt;
    if (!answer) {
        host_->kill();
        host_.reset();
        throw NoAnswer();
    }
    raise_load_error(answer->outcome, call.which);
    call.numbers = answer->numbers;
    auto text = answer->texts.begin();
    for (std::string* given : texts) std::ranges::copy(*text++, given->begin());
    return answer->result;
}

bool HostedCarrierLibrary::exchange_frames() {
    const GoesOn goes_on = [this, started = steady_clock::now()] { return this->goes_on(started); };
    return send_frame(host_->socket(), frame_, goes_on) && receive_frame(host_->socket(), frame_, goes_on);
}

bool HostedCarrierLibrary::goes_on(steady_clock::time_point started) const {
    // A child that the library left behind keeps the connection open behind a host that has ended.
    if (host_->has_ended()) return false;
    if (keep_alive_) keep_alive_();
    return waits_on(std::chrono::duration_cast<std::chrono::milliseconds>(steady_clock::now() - started));
}

}  // namespace machine::carrier
