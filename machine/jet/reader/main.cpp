// Reads the card manager's tables from the Jet file on its standard input and writes them as a card stream.
// It is a separate program because a damaged or hostile file may crash, hang or take over the library that
// reads it.

#include "machine/jet/reader/card_stream.h"
#include "machine/jet/reader/confinement.h"
#include "machine/jet/reader/jet_tables.h"
#include "machine/posix/rights.h"

#include <cerrno>
#include <cstdlib>
#include <exception>
#include <string>
#include <string_view>
#include <unistd.h>

namespace {

constexpr const char* DATABASE = "/proc/self/fd/0";

constexpr rlim_t LONGEST_SECONDS = 10;
[[maybe_unused]] constexpr rlim_t MOST_MEMORY = rlim_t{256} << 20;
constexpr rlim_t MOST_FILES = 16;
/// No core file, which would hold the cards. With 1 the kernel does not even start a program that collects
/// cores.
constexpr rlim_t NO_CORE = 1;
constexpr std::size_t CHUNK_BYTES = 32768;

void limit_myself() {
    using machine::posix::lower_limit;
    lower_limit(RLIMIT_CPU, LONGEST_SECONDS);
    lower_limit(RLIMIT_FSIZE, 0);
    lower_limit(RLIMIT_CORE, NO_CORE);
    lower_limit(RLIMIT_NOFILE, MOST_FILES);
#ifdef LIMIT_MEMORY
    lower_limit(RLIMIT_AS, MOST_MEMORY);
#endif
    machine::posix::gain_no_rights();
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
        // libmdb opens the file by its name, and with it the tables of its code page. It has looked at the
        // first page alone by then.
        JetTables tables(DATABASE);
#ifdef CONFINE
        confine_to_open_files();
#endif
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
