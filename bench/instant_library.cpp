/// A carrier's library that answers at once.

#include <cstdint>

using Int = std::int32_t;

extern "C" Int fn_x_bind(Int, char*, char*, char*, Int, void (*)(), Int, void (*)(), Int*) { return 1; }
extern "C" Int fn_x_unbind(char*, char*) { return 1; }
extern "C" Int fn_x_money_status(char*, char*, char*, char*, Int*, Int*, Int* service_state, Int*, Int*, Int*,
                                 Int*, Int*, Int*, Int*, Int*, Int*) {
    *service_state = 0;
    return 1;
}
extern "C" Int fn_x_submit(Int, char*, char*, char*, char*, Int, char*, char*, char*, Int, char*, char*, Int,
                           char*) {
    return 1;
}
