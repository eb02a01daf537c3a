// The browser form without the module of the pages' engine, which this test program lacks.

#include "service/frmWeb.h"
#include "tests/screen/screen_fixture.h"
#include "tests/support/windows_on_doubles.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <memory>

namespace {

struct WebForm : tests::DeskTest, tests::WindowsOnDoubles {
    void open(const platform::Text& address) {
        form = std::make_unique<service::frmWeb>(platform, state);
        form->load();
        form->WebBrowser.Navigate(address, "code=1", u"Content-Type: text/plain\r\n");
        form->show();
        settle();
    }
    const QLabel& notice() const { return *find("WebBrowser").findChild<QLabel*>(); }

    std::unique_ptr<service::frmWeb> form;
};

TEST_F(WebForm, SaysThatTheEngineIsMissingAndCloses) {
    for (const bool by_escape : {true, false}) {
        open(u"http://127.0.0.1/");
        ASSERT_TRUE(
            QTest::qWaitFor([this] { return notice().text().contains(QStringLiteral("(zent_web.so)")); }));
        EXPECT_TRUE(notice().isVisible());
        EXPECT_FALSE(find<QWidget>("WebBrowser").findChild<QProgressBar*>()->isVisible());
        if (by_escape) {
            QTest::keyClick(&find("WebBrowser"), Qt::Key_Escape);
        } else {
            QTest::mouseClick(&find("Command1"), Qt::LeftButton);
        }
        EXPECT_FALSE(form->loaded());
        settle();
    }
}

TEST_F(WebForm, OpensBlankWithoutAnAddress) {
    open(u"");
    EXPECT_TRUE(form->loaded());
    EXPECT_FALSE(notice().isVisible());
    form->unload();
    settle();
}

}  // namespace
