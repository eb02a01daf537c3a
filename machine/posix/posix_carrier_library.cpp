#include "machine/posix/posix_carrier_library.h"

#include "machine/posix/shared_object.h"
#include "platform/error.h"

#include <algorithm>
#include <array>
#include <dlfcn.h>
#include <vector>

namespace machine::posix {

using platform::ErrorNumber;
using platform::RuntimeError;

namespace {

constexpr const char* LIBRARY = "./x_msggate_d.so";

/// Room behind each text, since the library does not count exactly what it writes.
constexpr std::size_t ROOM = 256;

/// A text as an argument of the library: a copy that is written back after the call. No more is written back
/// than the text's own length, so a NUL that the library forgets does no harm.
class Copy {
  public:
    explicit Copy(std::string& text) : text_(text), buffer_(text.begin(), text.end()) {
        buffer_.resize(text.size() + 1 + ROOM);
    }
    Copy(const Copy&) = delete;
    Copy& operator=(const Copy&) = delete;
    ~Copy() { std::copy_n(buffer_.begin(), text_.size(), text_.begin()); }

    operator char*() { return buffer_.data(); }

  private:
    std::string& text_;
    std::vector<char> buffer_;
};

using Integer = std::int32_t;

// The library may call these while it works. They only let it go on: nothing that it reports is of use here.
Integer GATEWAY_NOTIFY_6(Integer, Integer, Integer, Integer, Integer, Integer) { return 1; }
Integer GATEWAY_NOTIFY_8(Integer, Integer, Integer, Integer, Integer, Integer, Integer, Integer) { return 1; }
Integer GATEWAY_NOTIFY_11(Integer, Integer, Integer, Integer, Integer, Integer, Integer, Integer, Integer,
                          Integer, Integer) {
    return 1;
}

/// The sixth argument of a bind, whose type depends on the message's kind.
using Callback = void (*)();

using Bind = Integer(Integer, char*, char*, char*, Integer, Callback, Integer, decltype(&GATEWAY_NOTIFY_11),
                     Integer*);

using Unbind = Integer(char*, char*);

using MoneyStatusCall = Integer(char*, char*, char*, char*, Integer*, Integer*, Integer*, Integer*, Integer*,
                                Integer*, Integer*, Integer*, Integer*, Integer*, Integer*, Integer*);

using UserInfo = Integer(char*, char*, char*, char*, char*, char*, char*, char*, Integer*);

using SubmitText = Integer(Integer, char*, char*, char*, char*, Integer, char*, char*, char*, Integer, char*,
                           char*, Integer, char*);

using SubmitAny = Integer(Integer, Integer, Integer, char*, char*, char*, char*, Integer, char*, char*, char*,
                          Integer, Integer, char*, char*, char*, Integer, char*);

}  // namespace

void PosixCarrierLibrary::Unload::operator()(void* library) const { ::dlclose(library); }

void* PosixCarrierLibrary::address_of(const char* name) {
    if (!library_ && is_whole_shared_object(LIBRARY))
        library_.reset(::dlopen(LIBRARY, RTLD_NOW | RTLD_LOCAL));
    if (!library_) {
        throw RuntimeError(ErrorNumber::library_not_loaded,
                           u"DLL을 로드하는 중 오류가 발생했습니다: x_msggate_d.so");
    }
    void*& address = exports_[name];
    if (address == nullptr) address = ::dlsym(library_.get(), name);
    if (address == nullptr) {
        throw RuntimeError(ErrorNumber::no_such_export, u"x_msggate_d.so에서 " + platform::from_ascii(name) +
                                                            u" 함수를 찾을 수 없습니다.");
    }
    return address;
}

template <class Function>
Function* PosixCarrierLibrary::export_of(const char* name) {
    return reinterpret_cast<Function*>(address_of(name));
}

std::int32_t PosixCarrierLibrary::fn_x_bind(std::int32_t argument1, std::string& user_id,
                                            std::string& password, std::string& service_domain,
                                            std::int32_t argument5, Notify argument6,
                                            std::int32_t argument7) {
    const Callback notify = argument6 == Notify::eight ? reinterpret_cast<Callback>(GATEWAY_NOTIFY_8)
                                                       : reinterpret_cast<Callback>(GATEWAY_NOTIFY_6);
    std::int32_t unread = 0;
    return export_of<Bind>("fn_x_bind")(argument1, Copy(user_id), Copy(password), Copy(service_domain),
                                        argument5, notify, argument7, GATEWAY_NOTIFY_11, &unread);
}

std::int32_t PosixCarrierLibrary::fn_x_unbind(std::string& user_id, std::string& password) {
    return export_of<Unbind>("fn_x_unbind")(Copy(user_id), Copy(password));
}

std::int32_t PosixCarrierLibrary::fn_x_money_status(std::string& user_id, std::string& service_domain,
                                                    std::string& service_number, std::string& client_address,
                                                    MoneyStatus& status) {
    std::array<std::int32_t, 7> unread{};
    return export_of<MoneyStatusCall>("fn_x_money_status")(
        Copy(user_id), Copy(service_domain), Copy(service_number), Copy(client_address), &status.field1,
        &status.service_type, &status.service_state, &status.field4, &status.field5, &unread[0], &unread[1],
        &unread[2], &unread[3], &unread[4], &unread[5], &unread[6]);
}

std::int32_t PosixCarrierLibrary::fn_x_user_info(std::string& user_id, std::string& service_domain,
                                                 std::string& service_number, std::string& client_address,
                                                 std::string& info_service_number,
                                                 std::string& info_user_name, std::string& info_sender_name,
                                                 std::string& info_callback) {
    std::int32_t unread = 0;
    return export_of<UserInfo>("fn_x_user_info")(Copy(user_id), Copy(service_domain), Copy(service_number),
                                                 Copy(client_address), Copy(info_service_number),
                                                 Copy(info_user_name), Copy(info_sender_name),
                                                 Copy(info_callback), &unread);
}

std::int32_t PosixCarrierLibrary::fn_x_submit(const Submit& given) {
    Submit submit = given;
    return export_of<SubmitText>("fn_x_submit")(
        submit.s_data_type, Copy(submit.user_id), Copy(submit.service_domain), Copy(submit.service_number),
        Copy(submit.client_address), submit.submit_sequence, Copy(submit.s_subject),
        Copy(submit.s_schedule_time), Copy(submit.s_callback), submit.s_dest_addr_count,
        Copy(submit.s_dest_addr), Copy(submit.s_sms_content), submit.s_attach_file_count,
        Copy(submit.s_attach_file));
}

std::int32_t PosixCarrierLibrary::fn_x_submit_2(const Submit& given) {
    Submit submit = given;
    // Only the carrier knows what the third argument means; it never changes.
    constexpr std::int32_t ARGUMENT_3 = 1;
    return export_of<SubmitAny>("fn_x_submit_2")(
        submit.s_data_type, submit.s_data_sub_type, ARGUMENT_3, Copy(submit.user_id),
        Copy(submit.service_domain), Copy(submit.service_number), Copy(submit.client_address),
        submit.submit_sequence, Copy(submit.s_subject), Copy(submit.s_schedule_time), Copy(submit.s_callback),
        submit.s_reply_flag, submit.s_dest_addr_count, Copy(submit.s_dest_addr), Copy(submit.s_sms_content),
        Copy(submit.s_tts_content), submit.s_attach_file_count, Copy(submit.s_attach_file));
}

}  // namespace machine::posix
