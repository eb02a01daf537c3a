#pragma once

#include "service/frmWeb.h"
#include "tests/support/scripted_desktop.h"
#include "tests/support/utf8.h"

#include <string>
#include <vector>

namespace tests {

/// Lets the user look at the next page of the service and close it. Appends "caption|address|body" to `seen`,
/// the body as bytes.
inline void read_next_page(ScriptedDesktop& desktop, std::vector<std::string>& seen) {
    desktop.in_form<service::frmWeb>(u"frmWeb", [&seen](service::frmWeb& web) {
        const platform::Navigation& navigation = web.WebBrowser.navigation();
        seen.push_back(utf8(web.caption()) + "|" + utf8(navigation.address) + "|" + navigation.body);
        web.escape_pressed();
    });
}

}  // namespace tests
