#include "standin/site/server.h"

#include "standin/site/routes.h"

#include <httplib.h>
#include <stdexcept>

namespace standin::site {
namespace {

constexpr const char* loopback = "127.0.0.1";
constexpr int patience = 3;  // seconds for the rest of a request, and for a slow reader

/// Browsers load nothing but this site's own text and style, show it in no other site's frame, and pass the
/// address, which holds the user's id, to nobody.
const httplib::Headers page_headers = {
    {"Content-Security-Policy",
     "default-src 'none'; style-src 'unsafe-inline'; form-action 'self'; base-uri 'none'; frame-ancestors "
     "'none'"},
    {"X-Content-Type-Options", "nosniff"},
    {"Referrer-Policy", "no-referrer"},
    {"Cache-Control", "no-store"},
};

void send(const Answer& answer, httplib::Response& response) {
    response.status = answer.status;
    response.set_content(answer.body, answer.type);
    if (!answer.file_name.empty()) {
        response.set_header("Content-Disposition",
                            "attachment; filename*=UTF-8''" + escaped_for_query(answer.file_name));
    }
}

/// Refuses a request before its body is read unless the head gives the length and it is small.
httplib::Server::HandlerResponse check_length(const httplib::Request& request, httplib::Response& response) {
    const bool has_length = request.has_header("Content-Length");
    if (request.has_header("Transfer-Encoding") || (request.method == "POST" && !has_length)) {
        send(refusal(411, "요청을 처리할 수 없습니다", "보내는 내용의 길이를 알려 주십시오."), response);
    } else if (has_length && request.get_header_value<std::uint64_t>("Content-Length") > body_limit) {
        send(refusal(413, "요청을 처리할 수 없습니다", "보내는 내용이 너무 깁니다."), response);
    } else {
        return httplib::Server::HandlerResponse::Unhandled;
    }
    return httplib::Server::HandlerResponse::Handled;
}

}  // namespace

struct Server::Http {
    httplib::Server server;
};

Server::Server(Sources sources) : sources_(std::move(sources)), http_(std::make_unique<Http>()) {
    httplib::Server& server = http_->server;
    const auto handle = [this](const httplib::Request& request, httplib::Response& response) {
        const std::string_view target = request.target;
        const std::size_t mark = target.find('?');
        send(answer({.host = request.get_header_value("Host"),
                     .path = request.path,
                     .query = std::string(mark == std::string_view::npos ? "" : target.substr(mark + 1)),
                     .posted = request.body},
                    sources_),
             response);
    };
    server.set_pre_routing_handler(check_length);
    server.Get(".*", handle);
    server.Post(".*", handle);
    // What the library itself refuses, such as a malformed request line, gets a page as well.
    server.set_error_handler([](const httplib::Request&, httplib::Response& response) {
        if (response.body.empty()) {
            send(refusal(response.status, "요청을 처리할 수 없습니다", "주소를 확인하여 주십시오."),
                 response);
        }
    });
    server.set_default_headers(page_headers);
    server.set_payload_max_length(body_limit);
    // One answer for each connection, so that the rest of a refused body is never read as the next request.
    server.set_keep_alive_max_count(1);
    server.set_keep_alive_timeout(patience);
    server.set_read_timeout(patience);
    server.set_write_timeout(patience);
}

Server::~Server() = default;

int Server::bind(int port) {
    const int bound = port == 0                                    ? http_->server.bind_to_any_port(loopback)
                      : http_->server.bind_to_port(loopback, port) ? port
                                                                   : -1;
    if (bound < 0) {
        throw std::runtime_error("port " + std::to_string(port) + " cannot be had");
    }
    return bound;
}

void Server::run() { http_->server.listen_after_bind(); }

}  // namespace standin::site
