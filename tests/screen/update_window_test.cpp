// The check for an update through the real windows, the real network and real files, while the server
// misbehaves.

#include "compose/main_form.h"
#include "tests/screen/program_fixture.h"
#include "tests/screen/screen_fixture.h"
#include "tests/support/http_server.h"
#include "tests/support/test_platform.h"
#include "tests/support/utf8.h"
#include "update/frmUpdateStart.h"

#include <QAction>
#include <QMessageBox>
#include <QProgressBar>
#include <QTest>
#include <atomic>
#include <fstream>
#include <future>
#include <set>

namespace tests {

namespace {

/// Counts how often a widget is painted.
class PaintCounter : public QObject {
  public:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) ++paints;
        return false;
    }
    int paints = 0;
};

class UpdateWindow : public ProgramTest {
  protected:
    UpdateWindow() { QCoreApplication::addLibraryPath(QStringLiteral(ZENT_APP_DIR)); }
    ~UpdateWindow() override { QCoreApplication::removeLibraryPath(QStringLiteral(ZENT_APP_DIR)); }

    /// The server's first page is well, and its list is what the test says.
    void install(std::function<void(HttpClient&)> answer_list) {
        server = std::make_unique<HttpServer>([answer_list](HttpClient& client) {
            const bool wants_list = client.request.starts_with("GET /update.ini ");
            wants_list ? answer_list(client)
                       : HttpServer::sending("HTTP/1.1 200 OK\r\nContent-Length: 2\r\n\r\nhi")(client);
        });
        std::ofstream(folder.path() / "i_version.ini")
            << "[SERVER_1]\r\nHTTPSERVER=" << utf8(server->url(u"/"))
            << "\r\nHTTPFILE=" << utf8(server->url()) << "\r\n[LAST_UPDATE]\r\nVERSION=1\r\n";
    }
    void look_for_update() {
        user.in_window("frmZentLogin", [](QWidget& window) { window.close(); });
        user.in_window("frmZent", [this](QWidget& window) {
            before = files();
            window.findChild<QAction*>(QStringLiteral("mnuUpDate"))->trigger();
        });
    }
    void read_box() {
        user.in_window("messageBox", [this](QWidget& window) {
            told = dynamic_cast<QMessageBox&>(window).text();
            QTest::keyClick(&window, Qt::Key_Return);
        });
    }
    /// Ends the program once the check is over.
    void finish() {
        user.in_window("frmZent", [this](QWidget& window) {
            after = files();
            polling = application.main_form().Timer1.enabled();
            window.close();
        });
        run();
    }
    std::set<std::string> files() const {
        std::set<std::string> found;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.path()))
            found.insert(entry.path().string());
        return found;
    }

    std::unique_ptr<HttpServer> server;
    std::set<std::string> before, after;
    QString told;
    bool polling = false;
};

TEST_F(UpdateWindow, LivesWhileAHeaderDoesNotEndAndClosesAtOnce) {
    std::promise<void> gone;
    std::atomic<bool> sending = false;
    install([&](HttpClient& client) {
        client.send("HTTP/1.1 200 OK\r\nX: ");
        sending = true;
        while (client.send(std::string(65'536, 'x'))) {
        }
        gone.set_value();
    });
    look_for_update();
    PaintCounter counter;
    user.in_window(
        "frmUpdate",
        [&](QWidget& window) { window.findChild<QProgressBar*>()->installEventFilter(&counter); },
        [&] { return sending.load(); });
    user.in_window(
        "frmUpdate", [](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); },
        [&] { return counter.paints >= 3; });
    finish();
    EXPECT_EQ(gone.get_future().wait_for(std::chrono::seconds(20)), std::future_status::ready);
    EXPECT_EQ(before, after);
    EXPECT_TRUE(polling);
}

TEST_F(UpdateWindow, ReadsAListOnlyAndTellsWhatItMakesOfIt) {
    // It breaks off in its second entry.
    install(
        HttpServer::sending("HTTP/1.1 200 OK\r\nContent-Length: 999\r\n\r\n[UPDATE_FILE_LIST]\r\n"
                            "UPDATE_FILE(1)=u;..\\..\\escape;temp_update.exe;1;;;\r\nUPDATE_FI"));
    look_for_update();
    read_box();
    finish();
    EXPECT_EQ(told, QStringLiteral("모든 파일이 최신 버전이므로 업데이트 할 필요가 없습니다."));
    EXPECT_EQ(before, after);
}

TEST_F(UpdateWindow, WithoutTheNetworksModuleTheServerIsNotReached) {
    QCoreApplication::removeLibraryPath(QStringLiteral(ZENT_APP_DIR));
    install([](HttpClient&) {});
    look_for_update();
    read_box();
    finish();
    EXPECT_TRUE(told.startsWith(QStringLiteral("웹서버 접속에 실패하여"))) << told.toStdString();
    EXPECT_EQ(server->requests(), 0);
    EXPECT_TRUE(polling);
}

class UpdateQuestion : public DeskTest {};

TEST_F(UpdateQuestion, OpensByItselfAndSoEnterAnswersNothing) {
    TestPlatform machine;
    const machine::qt::Screens screens = machine::qt::program_screens();
    machine::qt::QtDesktop desktop(screens, machine.files);
    platform::Platform platform = machine.on(desktop);
    update::frmUpdateStart form(platform, machine.state);
    form.show();
    settle();
    QTest::keyClick(find("Command2").window(), Qt::Key_Return);
    EXPECT_TRUE(form.loaded());
    EXPECT_FALSE(machine.state.forms.gDialogConfirmed);
    form.unload();
}

}  // namespace

}  // namespace tests
