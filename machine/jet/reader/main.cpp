// Reads the card manager's tables from the Jet file on its standard input and writes them as a card stream.
// It is a separate program because a damaged or hostile file may crash, hang or take over the library that
// reads it.

#include "machine/jet/reader/card_stream.h"
#include "machine/jet/reader/jet_tables.h"

#include <cerrno>
#include <cstdlib>
#include <exception>
#include <string>
#include <string_view>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace {

constexpr const char* DATABASE = "/proc/self/fd/0";

constexpr rlim_t LONGEST_SECONDS = 10;
[[maybe_unused]] constexpr rlim_t MOST_MEMORY = rlim_t{256} << 20;
constexpr rlim_t MOST_FILES = 16;
constexpr std::size_t CHUNK_BYTES = 32768;

void limit(decltype(RLIMIT_CPU) resource, rlim_t most) {
    const rlimit limit{most, most};
    if (::setrlimit(resource, &limit) != 0) std::_Exit(EXIT_FAILURE);
}

/// Gives up all rights that reading a file does not need.
void limit_myself() {
    limit(RLIMIT_CPU, LONGEST_SECONDS);
    limit(RLIMIT_FSIZE, 0);
    limit(RLIMIT_CORE, 0);
    limit(RLIMIT_NOFILE, MOST_FILES);
#ifdef LIMIT_MEMORY
    limit(RLIMIT_AS, MOST_MEMORY);
#endif
    if (::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0) std::_Exit(EXIT_FAILURE);
}

void write_out(std::string& bytes) {
    std::string_view rest = bytes;
    while (!rest.empty()) {
        const ssize_t written = ::write(STDOUT_FILENO, rest.data(), rest.size());
        if (written < 0 && errno != EINTR) std::_Exit(EXIT_FAILURE);
        if (written > 0) rest.remove_prefix(static_cast<std::size_t>(written));
    }
    bytes.clear();
}

}  // namespace

int main() {
    using namespace machine::jet;
    limit_myself();
    try {
        JetTables tables(DATABASE);
        std::string stream = stream_start();
        const auto read = [&](Table table) {
            return tables.read(table, [&](const Row& row) {
                append_row(stream, table, row);
                if (stream.size() >= CHUNK_BYTES) write_out(stream);
            });
        };
        const std::uint32_t folders = read(Table::folder);
        const std::uint32_t cards = read(Table::card);
        append_end(stream, folders, cards);
        write_out(stream);
    } catch (const std::exception&) {
        // The program notices that the end frame is missing.
        std::_Exit(EXIT_FAILURE);
    }
    std::_Exit(EXIT_SUCCESS);
}
