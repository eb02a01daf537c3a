#include "tests/web/loopback_server.h"

#include <QTcpSocket>
#include <algorithm>

namespace tests {

LoopbackServer::LoopbackServer(std::unique_ptr<QTcpServer> server) : server_(std::move(server)) {
    QObject::connect(server_.get(), &QTcpServer::pendingConnectionAvailable, server_.get(), [this] {
        QTcpSocket* connection = server_->nextPendingConnection();
        auto received = std::make_shared<QByteArray>();
        const auto read = [this, connection, received] {
            *received += connection->readAll();
            take(*connection, *received);
        };
        QObject::connect(connection, &QTcpSocket::readyRead, server_.get(), read);
        read();
    });
    server_->listen(QHostAddress::LocalHost);
}

void LoopbackServer::serve(const QByteArray& path, const QByteArray& body, const QByteArray& head,
                           const QByteArray& status, qsizetype missing) {
    answers_[path] = "HTTP/1.1 " + status +
                     "\r\nContent-Length: " + QByteArray::number(body.size() + missing) + "\r\n" + head +
                     "\r\n" + body;
}

QByteArray LoopbackServer::address(const QByteArray& path) const {
    return "//127.0.0.1:" + QByteArray::number(server_->serverPort()) + path;
}

const ReceivedRequest* LoopbackServer::request(const QByteArray& path) const {
    for (auto request = requests_.rbegin(); request != requests_.rend(); ++request) {
        if (request->path == path) return &*request;
    }
    return nullptr;
}

qsizetype LoopbackServer::requests_of(const QByteArray& path) const {
    return std::count_if(requests_.begin(), requests_.end(),
                         [&](const ReceivedRequest& request) { return request.path == path; });
}

void LoopbackServer::take(QIODevice& connection, QByteArray& received) {
    const qsizetype end = received.indexOf("\r\n\r\n");
    if (end < 0) return;
    ReceivedRequest request;
    QList<QByteArray> lines = received.left(end).split('\n');
    const QList<QByteArray> words = lines.takeFirst().split(' ');
    request.method = words.value(0);
    request.path = words.value(1);
    for (const QByteArray& line : lines) {
        const qsizetype colon = line.indexOf(':');
        request.head[line.left(colon).toLower()] = line.mid(colon + 1).trimmed();
    }
    const qsizetype length = request.head.value("content-length").toLongLong();
    if (received.size() < end + 4 + length) return;
    request.body = received.mid(end + 4, length);
    received.remove(0, end + 4 + length);
    requests_.push_back(request);
    connection.write(answers_.value(request.path, "HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\n\r\n"));
}

}  // namespace tests
