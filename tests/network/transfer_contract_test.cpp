// What every `Transfer` does. The same rows run with the toolkit's and with the double that the update's
// tests use.

#include "machine/qt/modules/network/qt_internet.h"
#include "tests/support/error_number.h"
#include "tests/support/http_server.h"
#include "tests/support/scripted_internet.h"
#include "tests/support/utf8.h"

#include <QCoreApplication>
#include <gtest/gtest.h>
#include <memory>

namespace {

using namespace platform;
using tests::error_number;
using tests::utf8;

constexpr int PROTOCOL = static_cast<int>(ErrorNumber::protocol_not_supported);
constexpr int NOT_COMPLETED = static_cast<int>(ErrorNumber::request_not_completed);
constexpr int GIVEN_UP = static_cast<int>(ErrorNumber::dialog_cancelled);

/// One implementation of the network, with one server.
struct Network {
    virtual ~Network() = default;
    virtual Internet& internet() = 0;
    /// The address at which the server gives this answer from now on.
    virtual Text serve(const tests::ScriptedAnswer& answer) = 0;
};

struct RealNetwork : Network {
    Internet& internet() override { return real; }
    Text serve(const tests::ScriptedAnswer& answer) override {
        server = std::make_unique<tests::HttpServer>(
            tests::HttpServer::sending(answer.header ? *answer.header + "\r\n\r\n" + answer.body : ""));
        return server->url();
    }
    std::unique_ptr<tests::HttpServer> server;
    machine::qt::QtInternet real{machine::qt::TransferLimits{}};
};

struct ScriptedNetwork : Network {
    Internet& internet() override { return scripted; }
    Text serve(const tests::ScriptedAnswer& answer) override {
        scripted.answers[u"http://server/"] = answer;
        return u"http://server/";
    }
    tests::ScriptedInternet scripted;
};

struct Kind {
    const char* name;
    std::unique_ptr<Network> (*make)();
};
void PrintTo(const Kind& kind, std::ostream* out) { *out << kind.name; }

class TransferContract : public testing::TestWithParam<Kind> {
  protected:
    void get(const tests::ScriptedAnswer& answer) {
        transfer->execute(network->serve(answer));
        while (transfer->still_executing()) QCoreApplication::processEvents();
    }

    std::unique_ptr<Network> network = GetParam().make();
    std::unique_ptr<Transfer> transfer = network->internet().make_transfer();
};

TEST_P(TransferContract, TheHeaderIsReadByNameAndTheBodyInWholeChunks) {
    get({.header = "HTTP/1.1 404 None\r\nContent-Length: 6\r\nX-Ray: yes", .body = "abcdef"});
    EXPECT_TRUE(utf8(transfer->header()).starts_with("HTTP/1.1 404 None\r\n"));
    EXPECT_EQ(utf8(transfer->header(u"content-LENGTH")), "6");
    EXPECT_EQ(utf8(transfer->header(u"X-Ray")), "yes");
    EXPECT_EQ(utf8(transfer->header(u"Ray")), "");
    EXPECT_EQ(transfer->chunk(4), "abcd");
    EXPECT_EQ(transfer->chunk(4), "ef");
    EXPECT_EQ(transfer->chunk(4), "");
}

TEST_P(TransferContract, ABrokenConnectionFailsAfterTheWholeChunks) {
    get({.header = "HTTP/1.1 200 OK\r\nContent-Length: 10", .body = "abcde", .breaks = true});
    EXPECT_EQ(transfer->chunk(2), "ab");
    EXPECT_EQ(transfer->chunk(2), "cd");
    EXPECT_EQ(error_number([&] { transfer->chunk(2); }), NOT_COMPLETED);

    get({});
    EXPECT_EQ(error_number([&] { (void)transfer->header(); }), NOT_COMPLETED);
    EXPECT_EQ(error_number([&] { transfer->chunk(2); }), NOT_COMPLETED);
}

TEST_P(TransferContract, AWholeGetTakesAnAddressWithoutItsSchemeAndMayBeCut) {
    const Text url = network->serve(tests::ScriptedAnswer::ok("whole"));
    EXPECT_EQ(transfer->open_url(url, 100), "whole");
    EXPECT_EQ(transfer->open_url(u" " + url.substr(7) + u" ", 4), "whol");
    for (const char16_t* other : {u"file:///etc/passwd", u"ftp://a/b"})
        EXPECT_EQ(error_number([&] { transfer->open_url(other, 10); }), PROTOCOL) << utf8(other);
    for (const char16_t* none : {u"", u"http://", u"http://a b/"})
        EXPECT_EQ(error_number([&] { transfer->open_url(none, 10); }), NOT_COMPLETED) << utf8(none);
}

TEST_P(TransferContract, ACancelledOneRaisesItsErrorUntilTheNextBegins) {
    const Text url = network->serve(tests::ScriptedAnswer::ok("ok"));
    transfer->execute(url);
    transfer->cancel();
    EXPECT_FALSE(transfer->still_executing());
    EXPECT_EQ(error_number([&] { (void)transfer->header(); }), GIVEN_UP);
    EXPECT_EQ(error_number([&] { transfer->chunk(1); }), GIVEN_UP);
    EXPECT_EQ(transfer->open_url(url, 100), "ok");
}

INSTANTIATE_TEST_SUITE_P(
    , TransferContract,
    testing::Values(Kind{"QtInternet", [] { return std::unique_ptr<Network>(new RealNetwork); }},
                    Kind{"ScriptedInternet", [] { return std::unique_ptr<Network>(new ScriptedNetwork); }}),
    [](const auto& info) { return info.param.name; });

}  // namespace
