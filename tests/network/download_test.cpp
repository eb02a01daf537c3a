// The exact events of a transfer for each thing that a server may do.

#include "update/download.h"

#include "machine/qt/modules/network/qt_internet.h"
#include "tests/network/event_clock.h"
#include "tests/support/http_server.h"
#include "tests/support/memory_files.h"
#include "tests/support/other_ports.h"
#include "tests/support/secure_server.h"
#include "tests/support/test_platform.h"
#include "tests/support/utf8.h"

#include <QTimer>
#include <gtest/gtest.h>

namespace {

using namespace platform;
using tests::HttpClient;
using tests::HttpServer;
using tests::utf8;
using update::Download;

constexpr const char16_t* PLACE = u"z:\\app\\update_temp\\update.ini";

/// The control with a clock that stands still one second after the start, so that rates equal sums.
struct DownloadBench : tests::TestPlatform {
    explicit DownloadBench(const machine::qt::TransferLimits& limits = {}) : network(limits) {
        files.folders = {u"z:\\app\\update_temp"};
        control.set_save_location(PLACE);
        control.DLComplete.connect([this] { write("DLComplete"); });
        control.DLError.connect([this](const Text& text) { write("DLError " + utf8(text)); });
        control.DLECode.connect([this](int code) { write("DLECode " + std::to_string(code)); });
        control.RecievedBytes.connect([this](int bytes) { write("RecievedBytes " + std::to_string(bytes)); });
        control.Percent.connect([this](int percent) { write("Percent " + std::to_string(percent)); });
        control.StatusChange.connect([this](const Text& text) { write("StatusChange " + utf8(text)); });
        control.Rate.connect([this](const Text& text) { write("Rate " + utf8(text)); });
        control.TimeLeft.connect([this](const Text& text) { write("TimeLeft " + utf8(text)); });
    }

    void write(const std::string& event) { log += event + "\n"; }

    /// The events of a transfer from the server.
    std::string run(const HttpServer& server) { return run(server.url()); }
    std::string run(const Text& url) {
        log.clear();
        control.set_url(url);
        control.GetFileInformation();
        control.download();
        return log;
    }

    tests::EventClock event_clock;
    machine::qt::QtInternet network;
    Platform machine = tests::with(platform, {.clock = &event_clock, .internet = &network});
    Download control{machine};
    std::string log;
};

constexpr const char* ASKED = "StatusChange 서버에 접속중.\nStatusChange 파일의 정보를 읽습니다.\n";
constexpr const char* FOUND = "StatusChange 파일의 정보를 읽어옵니다.\n";
constexpr const char* MISSING =
    "DLError 파일을 찾을 수 없습니다!\nStatusChange 파일을 찾을 수 없습니다!\nDLECode 2\n";
constexpr const char* BAD_HEADER =
    "DLError 파일의 해드부분이 에러입니다.\nStatusChange 파일의 해드부분 오류입니다.\nDLECode 3\n";
constexpr const char* RECEIVING = "StatusChange 서버에 접속. 관련 파일 다운중..\n";
constexpr const char* COMPLETE = "DLComplete\nStatusChange 다운로드 성공\n";
constexpr const char* FAILED =
    "DLError 서버접속 에러!\n"
    "DLError 관련 프로그램이 현재 실행중에 있습니다. 실행을 종료하고 업데이트 하여 주십시오.\r\n\r\n"
    "실행을 종료하지 않고 업데이트를 하게 되면. 다음 업데이트 파일로 계속 진행됩니다.\r\n\r\n"
    "그러나 실행을 종료하지 않은 프로그램은 업데이트 되지 않습니다.\n"
    "DLECode 1\n";

std::string progress(const char* rate, const char* left, int bytes, int percent) {
    return std::string("Rate ") + rate + "\nTimeLeft " + left + "\nRecievedBytes " + std::to_string(bytes) +
           "\nPercent " + std::to_string(percent) + "\nStatusChange 서버에 접속중.\n";
}

std::string answer(const std::string& status, const std::string& body, std::size_t length) {
    return "HTTP/1.1 " + status + "\r\nContent-Length: " + std::to_string(length) + "\r\n\r\n" + body;
}
std::string answer(const std::string& status, const std::string& body) {
    return answer(status, body, body.size());
}

TEST(DownloadEvents, AreExactlyTheseForEachAnswer) {
    const std::string kilobyte(1024, 'k');
    const std::string page = "<html>";
    // Without a file the elapsed time is the time since midnight, and the first percentage ends the transfer.
    const std::string first_chunk_of_page = "Rate 0 Byte\nTimeLeft -10 시 0 분\nRecievedBytes 6\n";
    const char* first_chunk_of_found_page = "Rate 6 Byte\nTimeLeft 0 시 0 분\nRecievedBytes 6\n";
    const struct {
        const char* name;
        std::string sent;
        std::string events;
    } rows[] = {
        {"whole", answer("200 OK", kilobyte + std::string(476, 'r')),
         ASKED + std::string(FOUND) + RECEIVING + progress("1 KB", "0 초", 1024, 68) +
             progress("1 KB", "0 초", 1500, 100) + progress("1 KB", "0 초", 1500, 100) + COMPLETE},
        {"a last chunk of one byte ends it", answer("200 OK", kilobyte + "r"),
         ASKED + std::string(FOUND) + RECEIVING + progress("1 KB", "0 초", 1024, 100) +
             progress("1 KB", "0 초", 1025, 100) + COMPLETE},
        {"206 is found", answer("206 Part", "ab"),
         ASKED + std::string(FOUND) + RECEIVING + progress("2 Byte", "0 초", 2, 100) +
             progress("2 Byte", "0 초", 2, 100) + COMPLETE},
        {"207 is not", answer("207 Many", page),
         ASKED + std::string(MISSING) + RECEIVING + first_chunk_of_page + FAILED},
        {"a redirect is not", answer("301 Moved\r\nLocation: /a", page),
         ASKED + std::string(MISSING) + RECEIVING + first_chunk_of_page + FAILED},
        {"404", answer("404 None", page),
         ASKED + std::string(MISSING) + RECEIVING + first_chunk_of_page + FAILED},
        {"500 without a page", answer("500 Broken", ""), ASKED + std::string(MISSING) + RECEIVING + FAILED},
        {"an empty file", answer("200 OK", ""), ASKED + std::string(FOUND) + RECEIVING + FAILED},
        {"no length", "HTTP/1.1 200 OK\r\n\r\n" + page,
         ASKED + std::string(BAD_HEADER) + RECEIVING + first_chunk_of_found_page + FAILED},
        {"a header of ten megabytes",
         "HTTP/1.1 200 OK\r\nX: " + std::string(10'000'000, 'x') + "\r\nContent-Length: 6\r\n\r\n" + page,
         ASKED + std::string(BAD_HEADER) + RECEIVING + first_chunk_of_found_page + FAILED},
        {"too long a length", answer("200 OK", "a", 99'999'999'999),
         ASKED + std::string(BAD_HEADER) + RECEIVING + FAILED},
        {"closed in the middle", answer("200 OK", kilobyte + "half", 2048),
         ASKED + std::string(FOUND) + RECEIVING + progress("1 KB", "1 초", 1024, 50) + FAILED},
        {"no answer", "", ASKED + std::string(BAD_HEADER) + RECEIVING + FAILED},
        {"no HTTP", "220 ready\r\n\r\n", ASKED + std::string(BAD_HEADER) + RECEIVING + FAILED},
    };
    for (const auto& row : rows) {
        DownloadBench bench;
        HttpServer server(HttpServer::sending(row.sent));
        EXPECT_EQ(bench.run(server), row.events) << row.name;
    }
}

TEST(DownloadEvents, AServerThatIsTooSlowOrSendsTooMuchFailsLikeAMissingOne) {
    constexpr int AT_ONCE = 20, SOON = 500, NEVER = 100'000;
    const std::string kilobyte(1024, 'k');
    const std::string first_chunk =
        ASKED + std::string(FOUND) + RECEIVING + progress("1 KB", "1 초", 1024, 50);
    const struct {
        const char* name;
        machine::qt::TransferLimits limits;
        std::string sent;
        std::string events;
    } rows[] = {
        {"nothing",
         {.silence_milliseconds = AT_ONCE},
         "",
         ASKED + std::string(BAD_HEADER) + RECEIVING + FAILED},
        {"half the body",
         {.silence_milliseconds = SOON},
         answer("200 OK", kilobyte + "half", 2048),
         first_chunk + FAILED},
        {"half the body, and all the patience",
         {.silence_milliseconds = NEVER, .answer_milliseconds = SOON},
         answer("200 OK", kilobyte + "half", 2048),
         first_chunk + FAILED},
        {"more than the limit",
         {.silence_milliseconds = NEVER, .answer_milliseconds = NEVER, .body_bytes = 1500},
         answer("200 OK", std::string(3000, 'x')),
         ASKED + std::string(FOUND) + RECEIVING + FAILED},
    };
    for (const auto& row : rows) {
        DownloadBench bench(row.limits);
        HttpServer server([&](HttpClient& client) {
            client.send(row.sent);
            client.wait_until_gone();
        });
        EXPECT_EQ(bench.run(server), row.events) << row.name;
    }
}

TEST(DownloadEvents, AnInvalidCertificateFailsTheHeader) {
    DownloadBench bench;
    const tests::SecureServer server;
    EXPECT_EQ(bench.run(server.url()), ASKED + std::string(BAD_HEADER) + RECEIVING + FAILED);
}

TEST(DownloadEvents, ACancelEndsTheWaitForTheHeaderAndALaterDownloadFails) {
    DownloadBench bench;
    HttpServer silent([](HttpClient& client) { client.wait_until_gone(); });
    bench.control.set_url(silent.url());
    QTimer::singleShot(0, [&] { bench.control.Cancel(); });
    bench.control.GetFileInformation();
    EXPECT_EQ(bench.log,
              "StatusChange 서버에 접속중.\nStatusChange Cancelling..\n"
              "StatusChange 파일의 정보를 읽습니다.\nDLECode 4\nStatusChange 에러.\n");
    EXPECT_TRUE(bench.files.files.empty());
    bench.log.clear();
    bench.control.download();
    EXPECT_EQ(bench.log, RECEIVING + std::string(FAILED));
}

TEST(DownloadEvents, ACancelBeforeTheStartTakesEffectWhenTheHeaderArrives) {
    DownloadBench bench;
    bench.control.Cancel();
    HttpServer server(HttpServer::sending(answer("200 OK", "new")));
    bench.control.set_url(server.url());
    bench.log.clear();
    bench.control.GetFileInformation();
    EXPECT_EQ(bench.log, ASKED + std::string("DLECode 4\nStatusChange 에러.\n"));
    EXPECT_FALSE(bench.control.file_exists());
}

TEST(DownloadEvents, ACancelEndsTheWaitForTheRestAndTakesEffectBetweenTwoChunks) {
    const std::string first_chunk =
        ASKED + std::string(FOUND) + RECEIVING + progress("1 KB", "1 초", 1024, 50);
    const std::string cancelled = "DLECode 4\nStatusChange 오류.\n";
    HttpServer stuck([](HttpClient& client) {
        client.send(answer("200 OK", std::string(1030, 'x'), 2048));
        client.wait_until_gone();
    });
    DownloadBench waiting;
    waiting.control.RecievedBytes.connect(
        [&](int) { QTimer::singleShot(0, [&] { waiting.control.Cancel(); }); });
    EXPECT_EQ(waiting.run(stuck), first_chunk + "StatusChange Cancelling..\n" + cancelled);

    DownloadBench busy;
    HttpServer whole(HttpServer::sending(answer("200 OK", std::string(2048, 'x'))));
    busy.control.StatusChange.connect([&](const Text& text) {
        if (text == u"서버에 접속중." && busy.log.ends_with("접속중.\n") &&
            busy.log.find("Percent") != std::string::npos)
            busy.control.Cancel();
    });
    EXPECT_EQ(busy.run(whole), first_chunk + "StatusChange Cancelling..\n" + cancelled);
    EXPECT_EQ(busy.files.files[PLACE].size(), 1024u);
}

TEST(Download, LeavesTheOldFilesTail) {
    DownloadBench bench;
    bench.files.files[PLACE] = "old file";
    HttpServer server(HttpServer::sending(answer("200 OK", "new")));
    bench.run(server);
    EXPECT_EQ(bench.files.files[PLACE], "new file");
    EXPECT_TRUE(bench.control.file_exists());
    EXPECT_EQ(bench.control.file_size(), 3);
}

TEST(Download, AMissingFileIsNotTakenForAnEarlierOne) {
    DownloadBench bench;
    HttpServer there(HttpServer::sending(answer("200 OK", "new")));
    bench.run(there);
    HttpServer gone(HttpServer::sending(answer("404 None", "page")));
    bench.run(gone);
    EXPECT_FALSE(bench.control.file_exists());
    EXPECT_EQ(bench.control.file_size(), 0);
}

TEST(Download, AFileThatCannotBeWrittenIsReportedAsInUse) {
    DownloadBench bench;
    bench.files.failure = ErrorNumber::permission_denied;
    HttpServer server(HttpServer::sending(answer("200 OK", "new")));
    EXPECT_EQ(bench.run(server), ASKED + std::string(FOUND) + FAILED);
}

}  // namespace
