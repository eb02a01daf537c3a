#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QTcpServer>
#include <memory>

namespace tests {

/// A request as it came in, byte by byte.
struct ReceivedRequest {
    QByteArray method;
    QByteArray path;
    /// Of the names in small letters.
    QHash<QByteArray, QByteArray> head;
    QByteArray body;
};

/// A web server of this process. It writes down what it is asked and gives what it was told to.
class LoopbackServer {
  public:
    /// Takes over a server that does not listen yet, one with certificates or a plain one.
    explicit LoopbackServer(std::unique_ptr<QTcpServer> server = std::make_unique<QTcpServer>());

    /// Answers the path with this; `head` is further lines of the answer's head. More bytes than there are
    /// may be `missing`, for which the client then waits.
    void serve(const QByteArray& path, const QByteArray& body, const QByteArray& head = "",
               const QByteArray& status = "200 OK", qsizetype missing = 0);
    /// The address of the path without its scheme, as "//127.0.0.1:1234/path".
    QByteArray address(const QByteArray& path) const;

    const QList<ReceivedRequest>& requests() const { return requests_; }
    /// The last request of the path, or none.
    const ReceivedRequest* request(const QByteArray& path) const;
    qsizetype requests_of(const QByteArray& path) const;

  private:
    void take(QIODevice& connection, QByteArray& received);

    std::unique_ptr<QTcpServer> server_;
    QHash<QByteArray, QByteArray> answers_;
    QList<ReceivedRequest> requests_;
};

}  // namespace tests
