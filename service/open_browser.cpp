#include "service/open_browser.h"

namespace service {

void OPEN_BROWSER(platform::Platform& platform, const platform::Text& url) {
    platform.shell.open_page(url.empty() ? u"about:blank" : url);
}

}  // namespace service
