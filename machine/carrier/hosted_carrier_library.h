#pragma once

#include "machine/carrier/host_process.h"
#include "machine/carrier/protocol.h"
#include "platform/ports/carrier_library.h"

#include <chrono>
#include <functional>
#include <initializer_list>
#include <optional>
#include <string>

namespace machine::carrier {

/// The carrier's library in a process of its own, `carrier-host`: whatever it does there, this program lives
/// on. The host is started for the first call, in the current directory, where the library is. It stays until
/// it ends in a call or the call is given up; the next call starts another one, which knows of no session. A
/// submit to it is answered as the library answers one without a session.
class HostedCarrierLibrary : public platform::CarrierLibrary {
  public:
    /// `host` is the path of the program; `keep_alive` is called many times a second of a long wait.
    explicit HostedCarrierLibrary(std::string host, std::function<void()> keep_alive = {});

    std::int32_t fn_x_bind(std::int32_t argument1, std::string& user_id, std::string& password,
                           std::string& service_domain, std::int32_t argument5, Notify argument6,
                           std::int32_t argument7) override;
    /// Without a host there is no session to end: 0.
    std::int32_t fn_x_unbind(std::string& user_id, std::string& password) override;
    std::int32_t fn_x_money_status(std::string& user_id, std::string& service_domain,
                                   std::string& service_number, std::string& client_address,
                                   MoneyStatus& status) override;
    std::int32_t fn_x_user_info(std::string& user_id, std::string& service_domain,
                                std::string& service_number, std::string& client_address,
                                std::string& info_service_number, std::string& info_user_name,
                                std::string& info_sender_name, std::string& info_callback) override;
    std::int32_t fn_x_submit(const Submit& submit) override;
    std::int32_t fn_x_submit_2(const Submit& submit) override;

  private:
    /// Makes the call. Its numbers, and these texts, become what the library has left of them.
    std::int32_t run(Call& call, std::initializer_list<std::string*> texts);
    std::int32_t submit(Call call) { return run(call, {}); }
    /// Whether the host has answered; the answer is in the frame then.
    bool exchange_frames();
    bool goes_on(std::chrono::steady_clock::time_point started) const;

    std::string program_;
    std::function<void()> keep_alive_;
    std::optional<HostProcess> host_;
    WipedBytes frame_;
    bool calling_ = false;
};

}  // namespace machine::carrier
