#include "service/frmWeb.h"
#include "service/service_pages.h"
#include "tests/support/test_platform.h"

#include <gtest/gtest.h>

namespace {

TEST(WebForm, CountsAsOpenAsLongAsItIsOpen) {
    tests::TestPlatform machine;
    service::frmWeb form(machine.platform, machine.state);
    EXPECT_FALSE(machine.state.forms.gWebFormOpen);
    form.load();
    EXPECT_TRUE(machine.state.forms.gWebFormOpen);
    const platform::Placement middle{.left = 8400, .top = 3600, .width = 12000, .height = 9000};
    EXPECT_EQ(form.placement(), middle);
    machine.state.forms.gWebFormOpen = false;
    form.window_activated();
    EXPECT_TRUE(machine.state.forms.gWebFormOpen);
    form.Command1.Click.raise();
    EXPECT_FALSE(machine.state.forms.gWebFormOpen);
    EXPECT_FALSE(form.loaded());
}

TEST(OpenBrowser, OpensThePageOrAnEmptyBrowser) {
    tests::TestPlatform machine;
    service::OPEN_BROWSER(machine.platform, u"http://pondira.example");
    service::OPEN_BROWSER(machine.platform, u"");
    const std::vector<platform::Text> pages{u"http://pondira.example", u"about:blank"};
    EXPECT_EQ(machine.shell.pages, pages);
}

}  // namespace
