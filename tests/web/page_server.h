#pragma once

#include "tests/support/http_server.h"

#include <QByteArray>
#include <QHash>
#include <optional>

namespace tests {

/// A request exactly as it arrived.
struct ReceivedRequest {
    QByteArray method;
    QByteArray path;
    /// By names in lower case.
    QHash<QByteArray, QByteArray> head;
    QByteArray body;
};

/// A server of pages. It records requests and gives the answers that the test sets.
class PageServer {
  public:
    /// Answers the path with this; `head` holds further lines of the answer's head. The head promises
    /// `missing` more bytes than are sent, for which the client then waits.
    void serve(const QByteArray& path, const QByteArray& body, const QByteArray& head = "",
               const QByteArray& status = "200 OK", qsizetype missing = 0);
    /// The address of the path without its scheme, as "//127.0.0.1:1234/path".
    QByteArray address(const QByteArray& path) const;

    std::vector<ReceivedRequest> requests() const;
    /// The last request for the path, or nothing.
    std::optional<ReceivedRequest> request(const QByteArray& path) const;
    std::ptrdiff_t requests_of(const QByteArray& path) const;

  private:
    struct Answer {
        QByteArray bytes = "HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\n\r\n";
        bool is_whole = true;
    };

    void answer(HttpClient& client);

    mutable std::mutex mutex_;
    QHash<QByteArray, Answer> answers_;
    std::vector<ReceivedRequest> requests_;
    HttpServer server_{[this](HttpClient& client) { answer(client); }};
};

}  // namespace tests
