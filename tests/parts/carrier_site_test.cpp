// The stand-in's web site as a browser sees it: the real program over a real socket.

#include "standin/ledger.h"
#include "standin/site/fields.h"
#include "tests/parts/carrier_client.h"
#include "tests/support/child_process.h"

#include <arpa/inet.h>
#include <httplib.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr const char* demo = "?code=07190533026&userid=demo&domain=pondira.example";
constexpr const char* posted_demo = "code=07190533026&userid=demo&domain=pondira.example";

/// The program, with the folder's ledger and carrier.ini, on a port of its own.
class Site {
  public:
    Site() : program_([this] { return run(); }) {
        close(output_.ends[1]);
        std::string line;
        for (char byte = 0; read(output_.ends[0], &byte, 1) == 1 && byte != '\n';) {
            line += byte;
        }
        port_ = std::stoi(line.substr(line.rfind(':') + 1));
    }
    ~Site() { close(output_.ends[0]); }
    Site(const Site&) = delete;
    Site& operator=(const Site&) = delete;

    int port() const { return port_; }
    tests::ChildProcess& program() { return program_; }

    httplib::Response get(const std::string& target) const { return *client().Get(target); }
    httplib::Response post(const std::string& target, const std::string& body) const {
        return *client().Post(target, body, "application/x-www-form-urlencoded");
    }
    /// The status line of the answer to these bytes.
    std::string status_for(std::string_view bytes) const {
        const int socket = connect_and_send(bytes);
        char start[64];
        const ssize_t count = recv(socket, start, sizeof start, MSG_WAITALL);
        close(socket);
        const std::string answer(start, static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
        return answer.substr(0, answer.find("\r\n"));
    }
    /// Sends these bytes and closes the connection.
    void leave_after(std::string_view bytes) const { close(connect_and_send(bytes)); }

  private:
    httplib::Client client() const { return httplib::Client("127.0.0.1", port_); }

    int run() {
        dup2(output_.ends[1], STDOUT_FILENO);
        execl(CARRIER_SITE, CARRIER_SITE, "--port-file", "port", nullptr);
        return 127;
    }

    int connect_and_send(std::string_view bytes) const {
        const int socket = ::socket(AF_INET, SOCK_STREAM, 0);
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_port = htons(static_cast<std::uint16_t>(port_));
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        EXPECT_EQ(connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
        // A request that is refused early is not read to its end.
        send(socket, bytes.data(), bytes.size(), MSG_NOSIGNAL);
        return socket;
    }

    struct Output {
        Output() { EXPECT_EQ(pipe(ends), 0); }
        int ends[2];
    };

    Output output_;
    int port_ = 0;
    tests::ChildProcess program_;
};

class CarrierSite : public tests::CarrierTest {
  protected:
    CarrierSite() {
        configure(
            "[account 홍길동]\npassword=hong1234\n[inbox demo]\n2026-01-05 "
            "11:30=팩스|02-1|3쪽|<i>견적</i>\n2026-01-04 18:05=음성|010-1|42초|안내문\n");
        standin::Ledger make("carrier-ledger.db");
    }

    struct Row {
        std::string time;
        std::string subject = "s";
        int result = 1;
        std::string user = "demo";
        std::string content = "t";
    };
    static void enter(const std::vector<Row>& rows) {
        standin::Database ledger("carrier-ledger.db", standin::Database::Access::write);
        standin::Statement insert = ledger.prepare(
            "INSERT INTO registration (call, time, operation, result, user_id, data_type, submit_sequence,"
            " subject, schedule_time, callback, dest_addr_count, recipient_count, dest_addr, sms_content,"
            " attach_file_count, attach_file) VALUES ((SELECT count(*) FROM registration), ?, 'fn_x_submit',"
            " ?, ?, 1, 1, ?, '20260105120000', '021', 1, 1, '홍길동:010;', ?, 0, '')");
        for (const Row& row : rows) {
            insert.bind_text(1, row.time);
            insert.bind(2, row.result);
            insert.bind_text(3, row.user);
            insert.bind_text(4, row.subject);
            insert.bind_text(5, row.content);
            insert.step();
        }
    }

    static bool holds(const std::string& page, std::string_view text) {
        return page.find(text) != std::string::npos;
    }
    /// The address of the first link with that title, as a browser reads it.
    static std::string link_called(const std::string& page, const std::string& title) {
        const std::size_t end = page.find("\">" + title + "</a>");
        if (end == std::string::npos) {
            return "";
        }
        const std::size_t start = page.rfind("href=\"", end) + 6;
        std::string address = page.substr(start, end - start);
        for (std::size_t i; (i = address.find("&amp;")) != std::string::npos;) {
            address.erase(i + 1, 4);
        }
        return address;
    }
    /// The subjects on a page of results, each ended with a blank.
    static std::string subjects(const std::string& page) {
        static constexpr std::string_view before = "&amp;id=";
        std::string all;
        for (std::size_t at = page.find(before); at != std::string::npos; at = page.find(before, at + 1)) {
            const std::size_t start = page.find('>', at) + 1;
            all += page.substr(start, page.find('<', start) - start) + ' ';
        }
        return all;
    }
};

TEST_F(CarrierSite, ReadsOnlyAPostOfRawBytes) {
    const std::string long_id(300, 'a');
    const struct {
        std::string body;
        const char* read;
    } posts[] = {
        {posted_demo, "07190533026|demo|pondira.example"},
        {"code=&userid=a+b%41&domain=", "|a+b%41|"},
        {"code=1&userid=a&domain=b&userid=c&domain=d", "1|a&domain=b&userid=c|d"},
        {"code=1&userid=\xC8\xAB&domain=d", "1|\xC8\xAB|d"},
        {"code=1&userid=&domain=d", "none"},
        {"code=1&domain=d&userid=a", "none"},
        {"code=1&userid=a&domain", "none"},
        {"userid=a&code=1&domain=d", "none"},
        {"code=1&userid=&domain=", "none"},
        {"code=\"><b>&userid=a&domain=d", "none"},
        {"code=1&userid=a&domain=<script>", "none"},
        {"code=1&userid=" + long_id + "&domain=d", "none"},
        {"", "none"},
    };
    for (const auto& post : posts) {
        const auto visitor = standin::site::posted_visitor(post.body);
        EXPECT_EQ(visitor ? visitor->code + "|" + visitor->user_id + "|" + visitor->domain : "none",
                  post.read)
            << post.body;
    }
}

TEST_F(CarrierSite, KnowsASubscriberFromAPostInCp949AndFromItsOwnLinks) {
    const Site site;
    const std::string hong = "code=1&userid=\xC8\xAB\xB1\xE6\xB5\xBF&domain=d";
    const httplib::Response page = site.post("/inbox", hong);
    EXPECT_EQ(page.status, 200);
    EXPECT_TRUE(holds(page.get_header_value("Content-Type"), "charset=utf-8"));
    EXPECT_TRUE(holds(page.body, "(홍길동)"));
    EXPECT_TRUE(holds(site.get(link_called(page.body, "가입자 정보")).body, "<td>홍길동</td>"));
    const std::string inbox = site.post("/inbox", posted_demo).body;
    EXPECT_EQ(link_called(inbox, "견적"), "") << "a fax is no sound";
    const httplib::Response sound = site.get(link_called(inbox, "안내문"));
    EXPECT_TRUE(holds(sound.get_header_value("Content-Disposition"), "attachment; filename*=UTF-8''안내문"))
        << "the client has put the name's bytes together";
    EXPECT_TRUE(sound.body.starts_with("RIFF") && holds(sound.body, "WAVEfmt "));
    EXPECT_EQ(site.get("/inbox/voice" + std::string(demo) + "&time=2026-01-05%2011:30").status, 404);
    EXPECT_EQ(site.post("/result", "code=1&userid=who&domain=d").status, 403);
    EXPECT_EQ(site.get("/result").status, 400);
}

TEST_F(CarrierSite, PagesThroughAllOfAUsersRegistrationsNewestFirstAndBack) {
    std::vector<Row> rows;
    std::string newest_first;
    for (int i = 0; i < 45; ++i) {
        // At the edge of a page several registrations of one moment must neither be lost nor come twice.
        rows.push_back({.time = "2026-01-05 10:00:0" + std::to_string(i / 10), .subject = std::to_string(i)});
        newest_first = std::to_string(i) + ' ' + newest_first;
    }
    rows.push_back({.time = "2026-01-05 09:00:00", .subject = "other", .user = "홍길동"});
    enter(rows);
    const Site site;

    std::vector<std::string> pages{subjects(site.post("/result", posted_demo).body)};
    std::string page = site.post("/result", posted_demo).body;
    EXPECT_EQ(link_called(page, "이전"), "");
    EXPECT_TRUE(holds(page, "모두 45건"));
    for (std::string next; !(next = link_called(page, "다음")).empty();) {
        page = site.get(next).body;
        pages.push_back(subjects(page));
    }
    ASSERT_EQ(pages.size(), 3U);
    EXPECT_EQ(pages[0] + pages[1] + pages[2], newest_first);

    page = site.get(link_called(page, "이전")).body;
    EXPECT_EQ(subjects(page), pages[1]);
    EXPECT_EQ(subjects(site.get(link_called(page, "이전")).body), pages[0]);
    EXPECT_EQ(subjects(site.get(link_called(page, "처음")).body), pages[0]);
}

TEST_F(CarrierSite, FiltersByDayAndStateAndKeepsTheFilterOnTheNextPage) {
    std::vector<Row> rows{{.time = "2026-01-04 23:59:59", .subject = "before", .result = 5},
                          {.time = "2026-01-05 00:00:00", .subject = "good"},
                          {.time = "2026-01-06 00:00:00", .subject = "after", .result = 8}};
    for (int i = 0; i < 21; ++i) {
        rows.push_back({.time = "2026-01-05 23:59:59", .subject = "x", .result = 8});
    }
    enter(rows);
    const Site site;
    const std::string list = std::string("/result") + demo;
    std::string twenty;
    for (int i = 0; i < 20; ++i) {
        twenty += "x ";
    }
    const std::string refused = site.get(list + "&day=2026-01-05&state=refused").body;
    EXPECT_EQ(subjects(refused), twenty);
    EXPECT_TRUE(holds(refused, "수신자 초과"));
    EXPECT_EQ(subjects(site.get(link_called(refused, "다음")).body), "x ");
    EXPECT_EQ(subjects(site.get(list + "&state=registered").body), "good ");
    EXPECT_EQ(subjects(site.get(list + "&day=2026-01-06").body), "after ");
    EXPECT_EQ(subjects(site.get(list + "&day=2026-02-01").body), "");
}

TEST_F(CarrierSite, ShowsMessagesAsTextAndNeverAsMarkup) {
    enter({{.time = "2026-01-05 10:00:00",
            .subject = "</a><script>alert(1)</script>",
            .content = "\" onclick='x' & <b>\x01\xED\x95\x9C"}});
    const Site site;
    for (const char* target : {"/result", "/result/one", "/inbox"}) {
        const httplib::Response page =
            site.get(target + std::string(demo) + "&id=1&day=%22%3E%3Cb%3E%3Cb%3E");
        EXPECT_EQ(page.status, 200) << target;
        for (const char* markup : {"<script", "<b>\x01", "<i>", "onclick='", "\"><b>"}) {
            EXPECT_FALSE(holds(page.body, markup)) << markup << " on " << target;
        }
        EXPECT_TRUE(page.get_header_value("Content-Security-Policy").starts_with("default-src 'none'"))
            << target;
    }
    EXPECT_TRUE(holds(site.get(std::string("/result/one") + demo + "&id=1").body, "&lt;b&gt;?한"));
    EXPECT_TRUE(holds(site.get("/%3Cb%3E/htm/register/default.jsp?code=1").body, "<td>&lt;b&gt;</td>"));
}

TEST_F(CarrierSite, ShowsNoPasswordsAndNoRegistrationsOfOthers) {
    enter({{.time = "2026-01-05 10:00:00", .subject = "secret", .user = "홍길동"}});
    const Site site;
    for (const char* target : {"/result", "/result/one", "/money", "/memedit", "/inbox", "/", "/company",
                               "/idpass", "/kelmora/htm/register/default.jsp"}) {
        const std::string page = site.get(target + std::string(demo) + "&id=1").body;
        EXPECT_FALSE(holds(page, "demo1234")) << target;
        EXPECT_FALSE(holds(page, "secret")) << target;
    }
    EXPECT_EQ(site.get(std::string("/result/one") + demo + "&id=1").status, 404);
}

TEST_F(CarrierSite, AnswersHostileRequestsAndContinues) {
    const Site site;
    const std::string head = "POST /result HTTP/1.1\r\nHost: h\r\n";
    const struct {
        std::string bytes;
        const char* answer;
    } requests[] = {
        {"GARBAGE\r\n\r\n", "HTTP/1.1 400 "},
        {"GET /download/../carrier.ini HTTP/1.1\r\nHost: h\r\n\r\n", "HTTP/1.1 404 "},
        {"GET /" + std::string(20000, 'a') + " HTTP/1.1\r\n\r\n", "HTTP/1.1 414 "},
        {"GET / HTTP/1.1\r\nX: " + std::string(20000, 'a') + "\r\n\r\n", ""},
        {"DELETE /result HTTP/1.1\r\nHost: h\r\n\r\n", "HTTP/1.1 404 "},
        {head + "\r\n", "HTTP/1.1 411 "},
        {head + "Content-Length: 4097\r\n\r\n" + std::string(4097, 'a'), "HTTP/1.1 413 "},
        {head + "Content-Length: 99999999999999999999999\r\n\r\n", "HTTP/1.1 413 "},
        {head + "Content-Length: -1\r\n\r\n", "HTTP/1.1 413 "},
        {head + "Transfer-Encoding: chunked\r\n\r\nFFFFFF\r\n", "HTTP/1.1 411 "},
        {head + "Content-Length: 4\r\n\r\ncode" + head, "HTTP/1.1 400 "},
        {"GET /result?userid=%&code=%4&domain=%ZZ HTTP/1.1\r\nHost: h\r\n\r\n", "HTTP/1.1 400 "},
        {"GET /result" + std::string(demo) +
             "&before=99999999999999999999&day=%00 HTTP/1.1\r\nHost: h\r\n\r\n",
         "HTTP/1.1 200 "},
    };
    for (const char* start : {"", "GET", "POST /result HTTP/1.1\r\nContent-Length: 50\r\n\r\ncode="}) {
        site.leave_after(start);
    }
    for (const auto& request : requests) {
        EXPECT_TRUE(site.status_for(request.bytes).starts_with(request.answer))
            << request.bytes.substr(0, 80);
        EXPECT_EQ(site.get("/").status, 200) << "after " << request.bytes.substr(0, 80);
    }
}

TEST_F(CarrierSite, WritesItsPortAndEndsOnASignal) {
    Site site;
    site.get("/");
    int port = 0;
    std::ifstream("port") >> port;
    EXPECT_EQ(port, site.port());
    site.program().signal(SIGTERM);
    EXPECT_EQ(site.program().wait(), -SIGTERM);
}

}  // namespace
