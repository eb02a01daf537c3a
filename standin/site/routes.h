#pragma once

#include "standin/site/page.h"

namespace standin::site {

/// The answer to the request: the page at its path, or a refusal. Never throws.
Answer answer(const Request& request, const Sources& sources);

}  // namespace standin::site
