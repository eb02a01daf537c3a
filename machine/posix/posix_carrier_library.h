#pragma once

#include "platform/ports/carrier_library.h"

#include <map>
#include <memory>
#include <string>

namespace machine::posix {

/// The carrier's library in the current directory. The library and each export are looked up when first
/// called; after a failure the next call looks again.
class PosixCarrierLibrary : public platform::CarrierLibrary {
  public:
    std::int32_t fn_x_bind(std::int32_t argument1, std::string& user_id, std::string& password,
                           std::string& service_domain, std::int32_t argument5, Notify argument6,
                           std::int32_t argument7) override;
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
    struct Unload {
        void operator()(void* library) const;
    };

    void* address_of(const char* name);
    template <class Function>
    Function* export_of(const char* name);

    std::unique_ptr<void, Unload> library_;
    std::map<std::string, void*> exports_;
};

}  // namespace machine::posix
