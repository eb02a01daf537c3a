#include "tests/web/page_server.h"

#include <QList>
#include <algorithm>

namespace tests {

namespace {

ReceivedRequest parsed(const std::string& bytes) {
    const QByteArray whole = QByteArray::fromStdString(bytes);
    const qsizetype end = whole.indexOf("\r\n\r\n");
    QList<QByteArray> lines = whole.left(end).split('\n');
    const QList<QByteArray> words = lines.takeFirst().split(' ');
    ReceivedRequest request{
        .method = words.value(0), .path = words.value(1), .head = {}, .body = whole.mid(end + 4)};
    for (const QByteArray& line : lines) {
        const qsizetype colon = line.indexOf(':');
        request.head[line.left(colon).toLower()] = line.mid(colon + 1).trimmed();
    }
    return request;
}

}  // namespace

void PageServer::serve(const QByteArray& path, const QByteArray& body, const QByteArray& head,
                       const QByteArray& status, qsizetype missing) {
    const std::lock_guard lock(mutex_);
    answers_[path] = {.bytes = "HTTP/1.1 " + status + "\r\nConnection: close\r\nContent-Length: " +
                               QByteArray::number(body.size() + missing) + "\r\n" + head + "\r\n" + body,
                      .is_whole = missing == 0};
}

QByteArray PageServer::address(const QByteArray& path) const {
    return "//127.0.0.1:" + QByteArray::number(server_.port()) + path;
}

std::vector<ReceivedRequest> PageServer::requests() const {
    const std::lock_guard lock(mutex_);
    return requests_;
}

std::optional<ReceivedRequest> PageServer::request(const QByteArray& path) const {
    std::optional<ReceivedRequest> last;
    for (const ReceivedRequest& request : requests()) {
        if (request.path == path) last = request;
    }
    return last;
}

std::ptrdiff_t PageServer::requests_of(const QByteArray& path) const {
    return std::ranges::count(requests(), path, &ReceivedRequest::path);
}

void PageServer::answer(HttpClient& client) {
    const ReceivedRequest request = parsed(client.request);
    Answer answer;
    {
        const std::lock_guard lock(mutex_);
        requests_.push_back(request);
        answer = answers_.value(request.path);
    }
    client.send(answer.bytes.toStdString());
    if (!answer.is_whole) client.wait_until_gone();
}

}  // namespace tests
