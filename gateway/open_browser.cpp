#include "gateway/open_browser.h"

namespace gateway {

void OPEN_BROWSER(platform::Platform& platform, const platform::Text& url) {
    platform.shell.open_page(url.empty() ? u"about:blank" : url);
}

}  // namespace gateway
