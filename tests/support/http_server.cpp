#include "tests/support/http_server.h"

#include <array>
#include <netinet/in.h>
#include <regex>
#include <stdexcept>
#include <sys/socket.h>
#include <unistd.h>

namespace tests {

namespace {

/// The request's length in bytes according to its head; 0 while the head is incomplete.
std::size_t length_of(const std::string& request) {
    static const std::regex body_length("\r\ncontent-length: *([0-9]+)", std::regex::icase);
    const std::size_t head = request.find("\r\n\r\n");
    if (head == std::string::npos) return 0;
    std::smatch found;
    const std::string lines = request.substr(0, head);
    return head + 4 + (std::regex_search(lines, found, body_length) ? std::stoul(found[1]) : 0);
}

std::string read_request(int client) {
    std::string request;
    std::array<char, 4096> bytes{};
    for (std::size_t length = 0; length == 0 || request.size() < length; length = length_of(request)) {
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
    listening_ = std::thread([this] { listen(); });
}

HttpServer::~HttpServer() {
    ending_ = true;
    ::shutdown(listener_, SHUT_RDWR);
    listening_.join();
    {
        const std::lock_guard lock(mutex_);
        for (const int client : clients_) ::shutdown(client, SHUT_RDWR);
    }
    for (std::thread& thread : serving_) thread.join();
    ::close(listener_);
}

platform::Text HttpServer::url(platform::TextView path) const {
    return u"http://127.0.0.1:" + platform::decimal(port_) + platform::Text(path);
}

void HttpServer::listen() {
    while (!ending_) {
        const int socket = ::accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
        if (socket < 0) continue;
        const std::lock_guard lock(mutex_);
        clients_.insert(socket);
        serving_.emplace_back([this, socket] { serve(socket); });
    }
}

void HttpServer::serve(int socket) {
    HttpClient client(socket, read_request(socket));
    // A browser may open connections that it never uses.
    if (!client.request.empty()) {
        ++requests_;
        answer_(client);
    }
    const std::lock_guard lock(mutex_);
    clients_.erase(socket);
    ::shutdown(socket, SHUT_WR);
    ::close(socket);
}

}  // namespace tests
