#pragma once

#include "platform/text/text.h"

#include <atomic>
#include <functional>
#include <mutex>
#include <set>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

namespace tests {

/// One client of a server, after its request has been read.
class HttpClient {
  public:
    explicit HttpClient(int socket, std::string request) : socket_(socket), request(std::move(request)) {}

    /// Returns false once the client has gone.
    bool send(std::string_view bytes) const;
    /// Returns when the client has gone.
    void wait_until_gone() const;

  private:
    int socket_;

  public:
    /// The request, as far as it arrived.
    std::string request;
};

/// A server on the loopback device that runs the test's function for each client in a thread of its own and
/// then closes the connection.
class HttpServer {
  public:
    explicit HttpServer(std::function<void(HttpClient&)> answer);
    HttpServer(const HttpServer&) = delete;
    HttpServer& operator=(const HttpServer&) = delete;
    ~HttpServer();

    /// A server that sends these bytes.
    static std::function<void(HttpClient&)> sending(std::string bytes) {
        return [bytes = std::move(bytes)](HttpClient& client) { client.send(bytes); };
    }

    int port() const { return port_; }
    /// An address of the server; the path begins with a slash.
    platform::Text url(platform::TextView path = u"/update.ini") const;
    /// How many requests have come.
    int requests() const { return requests_; }

  private:
    void listen();
    void serve(int socket);

    std::function<void(HttpClient&)> answer_;
    int listener_;
    int port_ = 0;
    std::atomic<int> requests_ = 0;
    std::atomic<bool> ending_ = false;
    std::mutex mutex_;
    std::set<int> clients_;
    std::vector<std::thread> serving_;
    std::thread listening_;
};

}  // namespace tests
