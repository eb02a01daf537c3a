#include "tests/support/http_server.h"

#include <array>
#include <netinet/in.h>
#include <stdexcept>
#include <sys/socket.h>
#include <unistd.h>

namespace tests {

namespace {

std::string read_request(int client) {
    std::string request;
    std::array<char, 4096> bytes{};
    while (request.find("\r\n\r\n") == std::string::npos) {
        const ssize_t got = ::recv(client, bytes.data(), bytes.size(), 0);
        if (got <= 0) break;
        request.append(bytes.data(), static_cast<std::size_t>(got));
    }
    return request;
}

}  // namespace

bool HttpClient::send(std::string_view bytes) const {
    while (!bytes.empty()) {
        const ssize_t sent = ::send(socket_, bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (sent <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(sent));
    }
    return true;
}

void HttpClient::wait_until_gone() const {
    char byte = 0;
    while (::recv(socket_, &byte, 1, 0) > 0) {
    }
}

HttpServer::HttpServer(std::function<void(HttpClient&)> answer)
    : answer_(std::move(answer)), listener_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    auto* name = reinterpret_cast<sockaddr*>(&address);
    if (::bind(listener_, name, length) != 0 || ::listen(listener_, 8) != 0 ||
        ::getsockname(listener_, name, &length) != 0) {
        throw std::runtime_error("no server on the loopback device");
    }
    port_ = ntohs(address.sin_port);
    thread_ = std::thread([this] { serve(); });
}

HttpServer::~HttpServer() {
    ending_ = true;
    ::shutdown(listener_, SHUT_RDWR);
    if (const int client = client_; client >= 0) ::shutdown(client, SHUT_RDWR);
    thread_.join();
    ::close(listener_);
}

platform::Text HttpServer::url(platform::TextView path) const {
    return u"http://127.0.0.1:" + platform::decimal(port_) + platform::Text(path);
}

void HttpServer::serve() {
    for (;;) {
        const int socket = ::accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
        if (socket < 0 || ending_) break;
        client_ = socket;
        HttpClient client(socket, read_request(socket));
        ++requests_;
        if (!ending_) answer_(client);
        client_ = -1;
        ::shutdown(socket, SHUT_WR);
        ::close(socket);
    }
}

}  // namespace tests
