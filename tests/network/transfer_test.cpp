#include "machine/qt/modules/network/qt_internet.h"
#include "tests/network/event_clock.h"
#include "tests/support/error_number.h"
#include "tests/support/http_server.h"
#include "tests/support/secure_server.h"
#include "tests/support/utf8.h"

#include <QTimer>
#include <atomic>
#include <future>
#include <gtest/gtest.h>

namespace {

using namespace platform;
using tests::error_number;
using tests::HttpClient;
using tests::HttpServer;
using tests::utf8;

constexpr int SOON = 50;
constexpr int NEVER = 100'000;
constexpr std::size_t ANY_SIZE = 1'000'000'000;

constexpr int PROTOCOL = static_cast<int>(ErrorNumber::protocol_not_supported);
constexpr int NOT_COMPLETED = static_cast<int>(ErrorNumber::request_not_completed);
constexpr int TIMED_OUT = static_cast<int>(ErrorNumber::request_timed_out);
constexpr int GIVEN_UP = static_cast<int>(ErrorNumber::dialog_cancelled);

struct Transfers : testing::Test {
    machine::qt::QtInternet internet{machine::qt::TransferLimits{}};
    std::unique_ptr<Transfer> transfer = internet.make_transfer();
    tests::EventClock clock;

    void get(Transfer& by, const Text& url) {
        by.execute(url);
        while (by.still_executing()) clock.pause(1);
    }
    void get(const Text& url) { get(*transfer, url); }
};

TEST_F(Transfers, WaitForAWholeChunkHoweverSmallThePieces) {
    HttpServer server([](HttpClient& client) {
        client.send("HTTP/1.1 200 Fine\r\nContent-Length: 6\r\n\r\n");
        // Byte by byte; the second follows only after the first chunk has been asked for.
        for (const char byte : {'a', 'b', 'c', 'd', 'e', 'f'}) client.send(std::string(1, byte));
    });
    get(server.url());
    EXPECT_EQ(transfer->chunk(4), "abcd");
    EXPECT_EQ(transfer->chunk(4), "ef");
}

TEST_F(Transfers, SendAPlainRequestFollowNoRedirectAndKeepNoCookies) {
    std::string second_request;
    HttpServer server([&](HttpClient& client) {
        second_request = client.request;
        client.send(
            "HTTP/1.1 301 Moved\r\nLocation: /other\r\nSet-Cookie: a=b\r\n"
            "Cache-Control: max-age=9999\r\nContent-Length: 4\r\nConnection: close\r\n\r\nbody");
    });
    for (int round = 1; round <= 2; ++round) {
        get(server.url());
        EXPECT_TRUE(utf8(transfer->header()).starts_with("HTTP/1.1 301"));
        EXPECT_EQ(transfer->chunk(10), "body");
        EXPECT_EQ(server.requests(), round);
    }
    EXPECT_TRUE(second_request.starts_with("GET /update.ini HTTP/1.1\r\n"));
    EXPECT_EQ(second_request.find("Cookie"), std::string::npos) << second_request;
    EXPECT_EQ(second_request.find("gzip"), std::string::npos) << second_request;
}

TEST_F(Transfers, AnErrorFromTheServerIsAnAnswerToo) {
    for (const char* status : {"401 Who", "404 None", "500 Broken"}) {
        HttpServer server(HttpServer::sending(std::string("HTTP/1.1 ") + status +
                                              "\r\nWWW-Authenticate: Basic realm=\"a\"\r\n"
                                              "Content-Length: 4\r\n\r\npage"));
        EXPECT_EQ(transfer->open_url(server.url(), 100), "page") << status;
    }
}

TEST_F(Transfers, ReadNoResourcesOfTheToolkitAndFindNoSchemeInAQuery) {
    for (const char16_t* url : {u"qrc://a/b", u"data://text/plain,a"})
        EXPECT_EQ(error_number([&] { transfer->open_url(url, 10); }), PROTOCOL) << utf8(url);
    EXPECT_EQ(error_number([&] { transfer->open_url(u"file:/etc/passwd", 10); }), NOT_COMPLETED);
    HttpServer server(HttpServer::sending("HTTP/1.1 200 OK\r\n\r\nok"));
    EXPECT_EQ(transfer->open_url(server.url(u"/?next=http://other.example/").substr(7), 10), "ok");
}

TEST_F(Transfers, ABrokenConnectionFailsOnceTheWholeChunksBeforeItAreRead) {
    const struct {
        const char* sent;
        int chunks_of_two;
    } rows[] = {
        {"", 0},
        {"hello", 0},
        {"HTTP/1.1 200 OK\r\nContent-Le", 0},
        {"HTTP/1.1 200 OK\r\nContent-Length: 10\r\n\r\n", 0},
        {"HTTP/1.1 200 OK\r\nContent-Length: 10\r\n\r\nabcde", 2},
    };
    for (const auto& row : rows) {
        HttpServer server(HttpServer::sending(row.sent));
        get(server.url());
        int chunks = 0;
        EXPECT_EQ(error_number([&] {
                      while (!transfer->chunk(2).empty()) ++chunks;
                  }),
                  NOT_COMPLETED)
            << row.sent;
        EXPECT_EQ(chunks, row.chunks_of_two) << row.sent;
    }
}

TEST_F(Transfers, ALengthThatIsTooShortEndsTheBodyAndWithoutOneTheConnectionDoes) {
    HttpServer short_length(HttpServer::sending("HTTP/1.1 200 OK\r\nContent-Length: 2\r\n\r\nabcdef"));
    EXPECT_EQ(transfer->open_url(short_length.url(), 100), "ab");
    HttpServer no_length(HttpServer::sending("HTTP/1.0 200 OK\r\n\r\nabcdef"));
    EXPECT_EQ(transfer->open_url(no_length.url(), 100), "abcdef");
}

TEST_F(Transfers, EndWhenTheyTakeTooLong) {
    constexpr machine::qt::TransferLimits SILENCE{
        .silence_milliseconds = SOON, .answer_milliseconds = NEVER, .body_bytes = ANY_SIZE};
    constexpr machine::qt::TransferLimits WHOLE{
        .silence_milliseconds = NEVER, .answer_milliseconds = SOON, .body_bytes = ANY_SIZE};
    const struct {
        const char* name;
        machine::qt::TransferLimits limits;
        std::string sent;
        /// What the server sends again and again.
        std::string endless;
    } rows[] = {
        {"nothing", SILENCE, "", ""},
        {"half a header", SILENCE, "HTTP/1.1 200 OK\r\nX: " + std::string(100'000, 'x'), ""},
        {"a header without an end", SILENCE, "HTTP/1.1 200 OK\r\nX: ", std::string(65'536, 'x')},
        {"nothing of the body", SILENCE, "HTTP/1.1 200 OK\r\nContent-Length: 10\r\n\r\n", ""},
        {"half the body", SILENCE, "HTTP/1.1 200 OK\r\nContent-Length: 10\r\n\r\na", ""},
        {"the length of a piece without an end", SILENCE,
         "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n1\r\na\r\n1;", std::string(65'536, 'x')},
        {"a byte now and then", WHOLE, "HTTP/1.1 200 OK\r\nContent-Length: 999999999\r\n\r\n", "x"},
    };
    for (const auto& row : rows) {
        std::promise<void> gone;
        std::atomic<bool> came = false;
        HttpServer server([&](HttpClient& client) {
            if (came.exchange(true)) return;
            client.send(row.sent);
            while (!row.endless.empty() && client.send(row.endless)) {
            }
            client.wait_until_gone();
            gone.set_value();
        });
        machine::qt::QtInternet impatient(row.limits);
        const auto bounded = impatient.make_transfer();
        EXPECT_EQ(error_number([&] { bounded->open_url(server.url(), ANY_SIZE); }), TIMED_OUT) << row.name;
        EXPECT_EQ(error_number([&] { bounded->chunk(1); }), TIMED_OUT) << "nobody waits twice";
        EXPECT_EQ(gone.get_future().wait_for(std::chrono::seconds(20)), std::future_status::ready)
            << row.name << ": nobody reads on";
    }
}

TEST_F(Transfers, EndWhenTheBodyIsTooLargeAndAGetMayBeCut) {
    machine::qt::QtInternet narrow(
        {.silence_milliseconds = NEVER, .answer_milliseconds = NEVER, .body_bytes = 5000});
    HttpServer endless([](HttpClient& client) {
        client.send("HTTP/1.1 200 OK\r\n\r\n");
        while (client.send(std::string(1000, 'x'))) {
        }
    });
    const auto bounded = narrow.make_transfer();
    EXPECT_EQ(error_number([&] { bounded->open_url(endless.url(), 1'000'000); }), NOT_COMPLETED);
    EXPECT_EQ(transfer->open_url(endless.url(), 700), std::string(700, 'x'));
}

TEST_F(Transfers, CanBeCancelledDuringAWait) {
    HttpServer silent([](HttpClient& client) { client.wait_until_gone(); });
    QTimer::singleShot(0, [&] { transfer->cancel(); });
    EXPECT_EQ(error_number([&] { transfer->open_url(silent.url(), 100); }), GIVEN_UP);
}

TEST_F(Transfers, GoThroughTheSystemsProxy) {
    std::string request;
    HttpServer proxy([&](HttpClient& client) {
        request = client.request;
        client.send("HTTP/1.1 200 OK\r\nContent-Length: 3\r\n\r\nfar");
    });
    qputenv("http_proxy", utf8(proxy.url(u"")).c_str());
    EXPECT_EQ(transfer->open_url(u"http://far.example/update.ini", 100), "far");
    qunsetenv("http_proxy");
    EXPECT_TRUE(request.starts_with("GET http://far.example/update.ini HTTP/1.1\r\n")) << request;
}

TEST_F(Transfers, AreSecureIfTheAddressSaysSoAndTheCertificateIsValid) {
    const tests::SecureServer server;
    EXPECT_EQ(error_number([&] { transfer->open_url(server.url(), 100); }), NOT_COMPLETED);

    const QSslConfiguration before = QSslConfiguration::defaultConfiguration();
    QSslConfiguration trusting = before;
    trusting.addCaCertificate(server.certificate);
    QSslConfiguration::setDefaultConfiguration(trusting);
    machine::qt::QtInternet trusting_internet{machine::qt::TransferLimits{}};
    EXPECT_EQ(trusting_internet.make_transfer()->open_url(server.url(), 100), "secret");
    QSslConfiguration::setDefaultConfiguration(before);
}

}  // namespace
