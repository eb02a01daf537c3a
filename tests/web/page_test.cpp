// A page of the service in its form: what is sent, what the user sees, and how the form closes.

#include "platform/text/cp949.h"
#include "tests/web/web_fixture.h"

#include <QAbstractButton>
#include <QLabel>
#include <csignal>

namespace {

using tests::PageServer;
using tests::ReceivedRequest;
using tests::WebForm;

constexpr char HTML[] = "Content-Type: text/html; charset=utf-8\r\n";

TEST(Page, GetsOnlyThePostedBytesFromTheUser) {
    PageServer server;
    server.serve("/result.jsp", "<title>x</title><p>&#48156;&#49569;",
                 QByteArray(HTML) + "Set-Cookie: session=secret; Max-Age=86400\r\n");
    const std::string body =
        platform::encode_cp949(u"code=07190533026&userid=홍길동똠&domain=pondira.example");
    for (const char* visit : {"the first form", "the next form"}) {
        SCOPED_TRACE(visit);
        WebForm web;
        web.open("http:" + server.address("/result.jsp"), body);
        ASSERT_TRUE(web.loaded());
        const ReceivedRequest request = server.requests().back();
        EXPECT_EQ(request.method, "POST");
        EXPECT_EQ(request.body,
                  "code=07190533026&userid=\xC8\xAB\xB1\xE6\xB5\xBF\x8C\x63&domain=pondira.example");
        EXPECT_EQ(request.head.value("content-type"), "application/x-www-form-urlencoded");
        EXPECT_TRUE(request.head.value("accept-language").startsWith("ko-KR,ko"));
        EXPECT_FALSE(request.head.contains("cookie")) << "nothing is kept from one form to the next";
        EXPECT_FALSE(request.head.contains("referer"));
        EXPECT_EQ(web.text(), "발송");
        web.form.unload();
    }
    EXPECT_EQ(server.requests().size(), 2U);
}

TEST(Page, IsFetchedWithGetWhenTheBodyIsEmpty) {
    PageServer server;
    // Like older pages, it does not declare its code page.
    server.serve("/find", "<p>" + QByteArray::fromStdString(platform::encode_cp949(u"아이디 찾기")),
                 "Content-Type: text/html\r\n");
    WebForm web;
    web.open("http:" + server.address("/find"));
    ASSERT_TRUE(web.loaded());
    EXPECT_EQ(server.requests().back().method, "GET");
    EXPECT_EQ(web.text(), "아이디 찾기");

    server.serve("/next", "<p>x", HTML);
    web.form.WebBrowser.Navigate(platform::from_utf8(("http:" + server.address("/next")).toStdString()), {},
                                 {});
    EXPECT_TRUE(tests::comes([&] { return server.request("/next").has_value(); }));
}

TEST(Page, ThatCannotBeLoadedShowsTheEnginesErrorAndTheFormCloses) {
    PageServer* server = new PageServer;
    const QByteArray address = server->address("/");
    delete server;
    for (const bool by_escape : {true, false}) {
        WebForm web;
        web.open("http:" + address, "code=1");
        ASSERT_TRUE(web.loaded());
        EXPECT_NE(web.text().find("ERR_CONNECTION_REFUSED"), std::string::npos) << web.text();
        EXPECT_NE(web.text().find("사이트에 연결할 수 없음"), std::string::npos) << web.text();
        if (by_escape) {
            web.press(Qt::Key_Escape);
        } else {
            web.window().findChild<QAbstractButton*>(QStringLiteral("Command1"))->click();
        }
        EXPECT_FALSE(web.form.loaded());
    }
}

TEST(Page, CannotSwallowEscape) {
    PageServer server;
    server.serve("/", "<input autofocus onkeydown='event.preventDefault()'>", HTML);
    WebForm web;
    web.open("http:" + server.address("/"));
    ASSERT_TRUE(web.loaded());
    web.press(Qt::Key_Return);
    EXPECT_TRUE(web.form.loaded()) << "Enter is the page's";
    web.press(Qt::Key_Escape);
    EXPECT_FALSE(web.form.loaded());
}

TEST(Page, WhoseProcessDiesSaysSo) {
    PageServer server;
    server.serve("/", "<p>x", HTML);
    WebForm web;
    web.open("http:" + server.address("/"));
    ASSERT_TRUE(web.loaded());
    ::kill(static_cast<pid_t>(web.view().page()->renderProcessPid()), SIGKILL);
    ASSERT_TRUE(tests::comes([&] { return web.view().isHidden(); }));
    const auto* notice = web.window().findChild<QWidget*>(QStringLiteral("WebBrowser"))->findChild<QLabel*>();
    EXPECT_TRUE(notice->isVisible() && !notice->text().isEmpty());
    QTest::keyClick(&web.window(), Qt::Key_Escape);
    EXPECT_FALSE(web.form.loaded());
}

TEST(Page, FillsTheFormAboveTheButton) {
    PageServer server;
    server.serve("/", "<p>x", HTML);
    WebForm web;
    web.open("http:" + server.address("/"));
    ASSERT_TRUE(web.loaded());
    EXPECT_EQ(web.window().size(), QSize(800, 600));
    for (const QSize size : {QSize(800, 600), QSize(1100, 700), QSize(400, 300)}) {
        web.window().resize(size);
        QCoreApplication::processEvents();
        const QWidget& button = *web.window().findChild<QWidget*>(QStringLiteral("Command1"));
        const QRect page(web.view().mapTo(&web.window(), QPoint()), web.view().size());
        EXPECT_EQ(page.topLeft(), QPoint(0, 0));
        EXPECT_EQ(page.width(), size.width());
        EXPECT_LT(page.bottom(), button.mapTo(&web.window(), QPoint()).y());
        EXPECT_GT(page.bottom(), size.height() - 60);
    }
}

}  // namespace
