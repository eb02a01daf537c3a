#include "compose/recipients/status.h"

#include "gateway/gateway.h"

namespace compose {

Outcome outcome_of(platform::TextView status) {
    if (status == gateway::REGISTERED) return Outcome::registered;
    if (status == gateway::NO_ANSWER) return Outcome::unconfirmed;
    // A reason may stand behind it; one routine has a shorter word.
    const bool failed = status.starts_with(u"등록실패") || status == u"실패";
    return failed ? Outcome::failed : Outcome::open;
}

}  // namespace compose
