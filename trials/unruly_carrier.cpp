// A carrier's library that passes its calls on to "carrier.so" and goes wrong in one of them, as the file
// "misdeed" in the current directory orders: the call, counted from 1; "before" its work or "behind" it;
// "abort", "exit" or "hang". The calls are counted in a file, since the process that loads the library ends
// in one.

#include <cstdint>
#include <cstdlib>
#include <dlfcn.h>
#include <fstream>
#include <string>
#include <unistd.h>

namespace {

using Int = std::int32_t;

int count_call() {
    int calls = 0;
    std::ifstream("calls") >> calls;
    std::ofstream("calls") << ++calls;
    return calls;
}

/// Where the call that is going on is to go wrong; empty when it is not the one.
struct Order {
    Order() {
        int call = 0;
        std::ifstream("misdeed") >> call >> when >> what;
        if (call != count_call()) when.clear();
    }
    void obey() const {
        if (what == "abort") std::abort();
        if (what == "exit") std::exit(0);
        std::ofstream("hangs").close();
        for (;;) ::pause();
    }
    std::string when;
    std::string what;
};

template <class... Arguments>
Int pass_on(const char* name, const char* addresses, Arguments... arguments) {
    const Order order;
    if (!order.when.empty()) std::ofstream("spoilt_submit") << addresses;
    if (order.when == "before") order.obey();
    void* const carrier = ::dlopen("./carrier.so", RTLD_NOW | RTLD_LOCAL);
    const Int result = reinterpret_cast<Int (*)(Arguments...)>(::dlsym(carrier, name))(arguments...);
    if (order.when == "behind") order.obey();
    return result;
}

}  // namespace

extern "C" Int fn_x_bind(Int one, char* user, char* password, char* domain, Int five, void (*six)(),
                         Int seven, void (*eight)(), Int* nine) {
    return pass_on(__func__, "", one, user, password, domain, five, six, seven, eight, nine);
}
extern "C" Int fn_x_unbind(char* user, char* password) { return pass_on(__func__, "", user, password); }
extern "C" Int fn_x_money_status(char* user, char* domain, char* number, char* address, Int* one, Int* two,
                                 Int* three, Int* four, Int* five, Int* six, Int* seven, Int* eight,
                                 Int* nine, Int* ten, Int* eleven, Int* twelve) {
    return pass_on(__func__, "", user, domain, number, address, one, two, three, four, five, six, seven,
                   eight, nine, ten, eleven, twelve);
}
extern "C" Int fn_x_submit(Int type, char* user, char* domain, char* number, char* address, Int sequence,
                           char* subject, char* schedule, char* callback, Int count, char* recipients,
                           char* text, Int files, char* file) {
    return pass_on(__func__, recipients, type, user, domain, number, address, sequence, subject, schedule,
                   callback, count, recipients, text, files, file);
}
