#include "machine/posix/posix_shell.h"

#include "platform/error.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <optional>
#include <string_view>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace machine::posix {

using platform::Text;

namespace {

/// Starts the program and forgets it. It is started by a child that ends at once, so that the system adopts
/// it and no zombie is left.
void start(const std::string& program, const std::optional<std::string>& argument = std::nullopt) {
    const pid_t parent = ::fork();
    if (parent == 0) {
        ::setsid();
        const char* first = argument ? argument->c_str() : nullptr;
        std::signal(SIGXFSZ, SIG_DFL);
        if (::fork() == 0) ::execlp(program.c_str(), program.c_str(), first, nullptr);
        ::_exit(0);
    }
    while (parent > 0 && ::waitpid(parent, nullptr, 0) < 0 && errno == EINTR) {
    }
}

/// Whether the text behind a host's colon begins with a port.
bool is_port(std::string_view rest) {
    const std::size_t digits = std::min(rest.find_first_not_of("0123456789"), rest.size());
    return digits > 0 &&
           (digits == rest.size() || std::string_view("/?#").find(rest[digits]) != std::string_view::npos);
}

/// The address with `http:` or `https:`; nothing for another scheme, which may mean a file or a program.
std::optional<std::string> page_of(const std::string& address) {
    const std::size_t colon = std::min(address.find(':'), address.size());
    const std::string before = address.substr(0, colon);
    const Text scheme = platform::lower_case(platform::from_utf8(before));
    if (scheme == u"http" || scheme == u"https" || address == "about:blank") return address;
    const bool is_host = before.find('.') != std::string::npos || scheme == u"localhost";
    const bool has_scheme = colon < address.size() && before.find_first_of("/?#") == std::string::npos &&
                            !(is_host && is_port(std::string_view(address).substr(colon + 1)));
    if (has_scheme) return std::nullopt;
    return "http://" + address;
}

}  // namespace

PosixShell::PosixShell(Paths paths, std::string opener)
    : paths_(std::move(paths)),
      opener_(std::move(opener)),
      instance_(paths_.windows_directory(), paths_.application_directory()) {}

void PosixShell::open(const Text& path) {
    platform::ignore_errors([&] {
        const std::string file = paths_.to_read(path);
        // The name counts too: on a foreign disk every file may be marked as executable.
        const bool is_program =
            platform::lower_case(path).ends_with(u".exe") && ::access(file.c_str(), X_OK) == 0;
        is_program ? start(file) : start(opener_, file);
    });
}

void PosixShell::open_page(const Text& address) {
    const std::string page = platform::to_utf8(platform::trim(address));
    if (page.empty() || page.find('\0') != std::string::npos) return;
    if (const auto whole = page_of(page)) start(opener_, *whole);
}

void PosixShell::end_process() { ::_exit(0); }

bool PosixShell::another_instance_runs() { return !instance_.take(); }

}  // namespace machine::posix
