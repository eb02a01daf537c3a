// The service's web site. It only reads, so SIGTERM can end it at any moment.

#include "standin/settings.h"
#include "standin/site/server.h"

#include <charconv>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <exception>
#include <fstream>
#include <iostream>

namespace standin::site {
namespace {

constexpr const char* usage =
    "사용법: carrier-site [--ledger 파일] [--ini 파일] [--port 번호] [--port-file 파일]\n"
    "  --ledger     보여 줄 장부 (없으면 carrier.ini의 [carrier] ledger)\n"
    "  --ini        carrier.ini의 자리 (없으면 현재 폴더)\n"
    "  --port       0은 빈 번호 (없으면 0)\n"
    "  --port-file  쓰게 된 번호를 적을 파일 (화면에도 나옵니다)\n";

struct Options {
    std::string ledger;
    std::string settings = "carrier.ini";
    std::string port_file;
    int port = 0;
};

/// Returns false for arguments that it does not understand.
bool read_options(int count, char** arguments, Options& options) {
    for (int i = 1; i + 1 < count; i += 2) {
        const std::string_view name = arguments[i];
        const std::string_view value = arguments[i + 1];
        if (name == "--ledger") {
            options.ledger = value;
        } else if (name == "--ini") {
            options.settings = value;
        } else if (name == "--port-file") {
            options.port_file = value;
        } else if (name == "--port") {
            const auto [end, error] =
                std::from_chars(value.data(), value.data() + value.size(), options.port);
            if (error != std::errc() || end != value.data() + value.size() || options.port < 0 ||
                options.port > 65535) {
                return false;
            }
        } else {
            return false;
        }
    }
    return count % 2 == 1;
}

std::string this_month() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    char month[16];
    std::strftime(month, sizeof month, "%Y-%m", &local);
    return month;
}

/// Writes the number under another name and then renames the file, so that a program that waits for it never
/// reads half a number.
void write_port(const std::string& path, int port) {
    const std::string unfinished = path + ".new";
    std::ofstream(unfinished) << port << '\n';
    if (std::rename(unfinished.c_str(), path.c_str()) != 0) {
        throw std::runtime_error(path + " cannot be written");
    }
}

void serve(const Options& options) {
    const std::string ledger =
        options.ledger.empty() ? read_settings(options.settings).ledger : options.ledger;
    Server server({.ledger = ledger, .settings = options.settings, .this_month = this_month});
    const int port = server.bind(options.port);
    std::cout << "http://127.0.0.1:" << port << '/' << std::endl;
    if (!options.port_file.empty()) {
        write_port(options.port_file, port);
    }
    server.run();
}

}  // namespace
}  // namespace standin::site

int main(int count, char** arguments) {
    standin::site::Options options;
    if (!standin::site::read_options(count, arguments, options)) {
        std::cerr << standin::site::usage;
        return 2;
    }
    try {
        standin::site::serve(options);
    } catch (const std::exception& error) {
        std::cerr << "carrier-site: " << error.what() << '\n';
        return 1;
    }
}
