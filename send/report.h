#pragma once

#include "send/send_job.h"

namespace send {

/// What the user reads when a job is done. `recipients` is how many there were to register; those that are
/// neither successes nor failures count as stopped.
platform::Text report_text(const SendJob& job, int recipients, platform::LocalTime now);

}  // namespace send
