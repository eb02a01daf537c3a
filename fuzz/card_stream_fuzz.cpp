#include "fuzz/check.h"
#include "machine/jet/reader/card_stream.h"

#include <string>
#include <string_view>

namespace {

using namespace machine::jet;

struct Parsed {
    std::string rows;
    bool good = true, complete = false;
};

/// Writes the rows that were parsed from the stream back as a stream.
Parsed parse(std::string_view stream, std::size_t piece) {
    Parsed parsed;
    CardStreamParser parser([&](Table table, const Row& row) { append_row(parsed.rows, table, row); });
    for (; !stream.empty() && parsed.good; stream.remove_prefix(std::min(piece, stream.size())))
        parsed.good = parser.feed(stream.substr(0, piece));
    parsed.complete = parser.is_complete();
    return parsed;
}

}  // namespace

/// A stream gives the same rows in whatever pieces it arrives, and a whole stream equals its rows written
/// again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view stream(reinterpret_cast<const char*>(data), size);
    const Parsed whole = parse(stream, size + 1), pieces = parse(stream, 7);
    fuzz::check(whole.rows == pieces.rows && whole.good == pieces.good && whole.complete == pieces.complete,
                "pieces make no difference");
    if (whole.complete) {
        const std::string rows = stream_start() + whole.rows;
        fuzz::check(stream.starts_with(rows) && stream.size() > rows.size(), "the rows are what was sent");
    }
    return 0;
}
