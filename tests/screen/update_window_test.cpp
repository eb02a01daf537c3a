// The check for an update in an installation without the network's module.

#include "tests/screen/program_fixture.h"
#include "tests/support/http_server.h"
#include "tests/support/utf8.h"

#include <QAction>
#include <QMessageBox>
#include <QTest>
#include <fstream>

namespace tests {

namespace {

class UpdateWindow : public ProgramTest {};

TEST_F(UpdateWindow, WithoutTheNetworksModuleTheServerIsNotReached) {
    // Other tests look for modules there.
    QCoreApplication::removeLibraryPath(QStringLiteral(ZENT_APP_DIR));
    HttpServer server([](HttpClient&) {});
    std::ofstream(folder.path() / "i_version.ini")
        << "[SERVER_1]\r\nHTTPSERVER=" << utf8(server.url(u"/")) << "\r\nHTTPFILE=" << utf8(server.url())
        << "\r\n[LAST_UPDATE]\r\nVERSION=1\r\n";
    QString shown;
    bool polling = false;
    user.in_window("frmZentLogin", [](QWidget& window) { window.close(); });
    user.in_window("frmZent", [](QWidget& window) {
        window.findChild<QAction*>(QStringLiteral("mnuUpDate"))->trigger();
    });
    user.in_window("messageBox", [&](QWidget& window) {
        shown = dynamic_cast<QMessageBox&>(window).text();
        QTest::keyClick(&window, Qt::Key_Return);
    });
    user.in_window("frmZent", [&](QWidget& window) {
        polling = application.main_form().Timer1.enabled();
        window.close();
    });
    run();
    EXPECT_TRUE(shown.startsWith(QStringLiteral("웹서버 접속에 실패하여"))) << shown.toStdString();
    EXPECT_EQ(server.requests(), 0);
    EXPECT_TRUE(polling) << "for what the card manager hands over";
}

}  // namespace

}  // namespace tests
