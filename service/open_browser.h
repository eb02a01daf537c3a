#pragma once

#include "platform/ports/platform.h"
#include "platform/text/text.h"

namespace service {

/// Opens the page in the user's own browser; without an address the browser opens empty. A failure is silent.
void OPEN_BROWSER(platform::Platform& platform, const platform::Text& url);

}  // namespace service
