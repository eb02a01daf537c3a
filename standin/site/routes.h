#pragma once

#include "standin/site/page.h"

namespace standin::site {

/// The answer to the request: the page of its path, or a refusal. Nothing is thrown.
Answer answer(const Request& request, const Sources& sources);

}  // namespace standin::site
