#include "machine/posix/rights.h"

#include <algorithm>
#include <cstdlib>
#include <sys/prctl.h>

namespace machine::posix {

void lower_limit(decltype(RLIMIT_CPU) resource, rlim_t most) {
    rlimit limit{};
    ::getrlimit(resource, &limit);
    limit.rlim_max = std::min(limit.rlim_max, most);
    limit.rlim_cur = std::min(limit.rlim_cur, limit.rlim_max);
    if (::setrlimit(resource, &limit) != 0) std::_Exit(EXIT_FAILURE);
}

void gain_no_rights() {
    if (::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0) std::_Exit(EXIT_FAILURE);
}

}  // namespace machine::posix
