#pragma once

#include "platform/error.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>
#include <utility>

namespace platform {

/// A call to the carrier's library went out and nothing came back: the library may have done its work or not.
class NoAnswer : public RuntimeError {
  public:
    NoAnswer()
        : RuntimeError(ErrorNumber::server_unavailable,
                       u"x_msggate_d.so에서 응답이 없어 처리 결과를 알 수 없습니다.") {}
};

/// The six exports of the carrier's closed client library, arguments in the library's own order.
///
/// The library may write into its arguments: it gets a copy of each text's bytes (cp949), and afterwards the
/// copy's bytes, as many as the text had, replace the text. An out buffer is a text of the buffer's length.
/// Each call raises RuntimeError 48 when the library is missing or cannot be loaded, 453 when it lacks the
/// export, and NoAnswer when the library ends or is given up in the call.
class CarrierLibrary {
  public:
    /// A call is given up then. The carrier's own time-outs are shorter; giving up sooner would leave
    /// recipients of whom nobody knows whether they are registered.
    static constexpr std::chrono::minutes LONGEST_WAIT{3};

    /// Whether a call that has waited so long is to wait on.
    using Patience = std::function<bool(std::chrono::milliseconds waited)>;

    virtual ~CarrierLibrary() = default;

    /// Asked many times a second of a call that is not answered at once. Without it a call waits as long
    /// as it may.
    void set_patience(Patience patience) { patience_ = std::move(patience); }

    struct MoneyStatus {
        std::int32_t field1 = 0;
        std::int32_t service_type = 0;
        std::int32_t service_state = 0;
        std::int32_t field4 = 0;
        std::int32_t field5 = 0;
    };

    /// Which callback a bind passes in the sixth place, by the number of its 32-bit arguments. Nothing that
    /// the library reports is of use here, so a callback only lets it go on.
    enum class Notify : std::int32_t { six = 6, eight = 8 };

    /// The arguments of both submits. What the library writes into these is not wanted back.
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
                                   std::string& service_domain, std::int32_t argument5, Notify argument6,
                                   std::int32_t argument7) = 0;
    virtual std::int32_t fn_x_unbind(std::string& user_id, std::string& password) = 0;
    virtual std::int32_t fn_x_money_status(std::string& user_id, std::string& service_domain,
                                           std::string& service_number, std::string& client_address,
                                           MoneyStatus& status) = 0;
    virtual std::int32_t fn_x_user_info(std::string& user_id, std::string& service_domain,
                                        std::string& service_number, std::string& client_address,
                                        std::string& info_service_number, std::string& info_user_name,
                                        std::string& info_sender_name, std::string& info_callback) = 0;
    /// Plain text messages: `s_data_sub_type`, `s_reply_flag` and `s_tts_content` are not passed.
    virtual std::int32_t fn_x_submit(const Submit& submit) = 0;
    virtual std::int32_t fn_x_submit_2(const Submit& submit) = 0;

  protected:
    bool waits_on(std::chrono::milliseconds waited) const {
        return waited < LONGEST_WAIT && (!patience_ || patience_(waited));
    }

  private:
    Patience patience_;
};

/// Gives the library's calls this patience for as long as the object lives.
class PatienceScope {
  public:
    PatienceScope(CarrierLibrary& carrier, CarrierLibrary::Patience patience) : carrier_(carrier) {
        carrier_.set_patience(std::move(patience));
    }
    PatienceScope(const PatienceScope&) = delete;
    PatienceScope& operator=(const PatienceScope&) = delete;
    ~PatienceScope() { carrier_.set_patience({}); }

  private:
    CarrierLibrary& carrier_;
};

}  // namespace platform
