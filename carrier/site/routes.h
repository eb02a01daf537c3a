#pragma once

#include "carrier/site/page.h"

namespace carrier::site {

/// The answer to the request: the page of its path, or a refusal. Nothing is thrown.
Answer answer(const Request& request, const Sources& sources);

}  // namespace carrier::site
