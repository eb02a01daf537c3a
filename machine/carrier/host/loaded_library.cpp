#include "machine/carrier/host/loaded_library.h"

#include "machine/posix/shared_object.h"

#include <algorithm>
#include <array>
#include <dlfcn.h>

namespace machine::carrier {

namespace {

constexpr const char* LIBRARY = "/x_msggate_d.so";

/// Room behind each text, since the library does not count exactly what it writes.
constexpr std::size_t ROOM = 256;

using Integer = std::int32_t;

// The library may call these while it works. They only let it go on: nothing that it reports is of use here.
Integer GATEWAY_NOTIFY_6(Integer, Integer, Integer, Integer, Integer, Integer) { return 1; }
Integer GATEWAY_NOTIFY_8(Integer, Integer, Integer, Integer, Integer, Integer, Integer, Integer) { return 1; }
Integer GATEWAY_NOTIFY_11(Integer, Integer, Integer, Integer, Integer, Integer, Integer, Integer, Integer,
                          Integer, Integer) {
    return 1;
}

/// The sixth argument of a bind, which takes six or eight numbers.
using Callback = void (*)();

Callback callback_with(Integer numbers) {
    return numbers == 8 ? reinterpret_cast<Callback>(GATEWAY_NOTIFY_8)
                        : reinterpret_cast<Callback>(GATEWAY_NOTIFY_6);
}

using Bind = Integer(Integer, char*, char*, char*, Integer, Callback, Integer, decltype(&GATEWAY_NOTIFY_11),
                     Integer*);

using Unbind = Integer(char*, char*);

using MoneyStatus = Integer(char*, char*, char*, char*, Integer*, Integer*, Integer*, Integer*, Integer*,
                            Integer*, Integer*, Integer*, Integer*, Integer*, Integer*, Integer*);

using UserInfo = Integer(char*, char*, char*, char*, char*, char*, char*, char*, Integer*);

using Submit = Integer(Integer, char*, char*, char*, char*, Integer, char*, char*, char*, Integer, char*,
                       char*, Integer, char*);

using Submit2 = Integer(Integer, Integer, Integer, char*, char*, char*, char*, Integer, char*, char*, char*,
                        Integer, Integer, char*, char*, char*, Integer, char*);

/// The copies of a call's texts, one behind the other, each with a NUL and room behind it.
class Copies {
  public:
    Copies(const std::vector<std::string_view>& texts, WipedBytes& bytes) {
        std::size_t size = 0;
        for (const std::string_view text : texts) size += text.size() + 1 + ROOM;
        bytes.wipe();
        bytes.resize(size);
        char* copy = bytes.data();
        for (const std::string_view text : texts) {
            std::ranges::copy(text, copy);
            copies_.emplace_back(copy, text.size());
            copy += text.size() + 1 + ROOM;
        }
    }

    char* operator[](std::size_t i) const { return const_cast<char*>(copies_[i].data()); }

    /// No more than a text's own length comes back, so a NUL that the library forgets does no harm.
    const std::vector<std::string_view>& texts() const { return copies_; }

  private:
    std::vector<std::string_view> copies_;
};

/// Calls the export at this address. Deliberately noexcept: an exception of the library's ends the process
/// here.
Integer invoke(Export which, void* address, std::vector<Integer>& n, const Copies& t) noexcept {
    Integer unread = 0;
    switch (which) {
        case Export::bind:
            return reinterpret_cast<Bind*>(address)(n[0], t[0], t[1], t[2], n[1], callback_with(n[2]), n[3],
                                                    GATEWAY_NOTIFY_11, &unread);
        case Export::unbind:
            return reinterpret_cast<Unbind*>(address)(t[0], t[1]);
        case Export::money_status: {
            std::array<Integer, 7> u{};
            return reinterpret_cast<MoneyStatus*>(address)(t[0], t[1], t[2], t[3], &n[0], &n[1], &n[2], &n[3],
                                                           &n[4], &u[0], &u[1], &u[2], &u[3], &u[4], &u[5],
                                                           &u[6]);
        }
        case Export::user_info:
            return reinterpret_cast<UserInfo*>(address)(t[0], t[1], t[2], t[3], t[4], t[5], t[6], t[7],
                                                        &unread);
        case Export::submit:
            return reinterpret_cast<Submit*>(address)(n[0], t[0], t[1], t[2], t[3], n[1], t[4], t[5], t[6],
                                                      n[2], t[7], t[8], n[3], t[9]);
        case Export::submit_2: {
            // Only the carrier knows what the third argument means; it never changes.
            constexpr Integer ARGUMENT_3 = 1;
            return reinterpret_cast<Submit2*>(address)(n[0], n[1], ARGUMENT_3, t[0], t[1], t[2], t[3], n[2],
                                                       t[4], t[5], t[6], n[3], n[4], t[7], t[8], t[9], n[5],
                                                       t[10]);
        }
    }
    return 0;
}

}  // namespace

LoadedLibrary::LoadedLibrary(std::vector<std::string> folders) : folders_(std::move(folders)) {
    folders_.insert(folders_.begin(), ".");
}

void LoadedLibrary::Unload::operator()(void* library) const { ::dlclose(library); }

Answer LoadedLibrary::run(const Call& call, WipedBytes& copies) {
    if (!is_loaded()) return {.outcome = Outcome::no_library};
    void* address = address_of(call.which);
    if (address == nullptr) return {.outcome = Outcome::no_export};
    const Copies texts(call.texts, copies);
    std::vector<Integer> numbers = call.numbers;
    const Integer result = invoke(call.which, address, numbers, texts);
    if (!shape_of(call.which).gives_back) return {.result = result};
    return {.result = result, .numbers = std::move(numbers), .texts = texts.texts()};
}

bool LoadedLibrary::is_loaded() {
    for (const std::string& folder : folders_) {
        const std::string file = folder + LIBRARY;
        if (!library_ && posix::is_whole_shared_object(file.c_str()))
            library_.reset(::dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL));
    }
    return library_ != nullptr;
}

void* LoadedLibrary::address_of(Export which) {
    void*& address = exports_[which];
    if (address == nullptr) address = ::dlsym(library_.get(), shape_of(which).name);
    return address;
}

}  // namespace machine::carrier
