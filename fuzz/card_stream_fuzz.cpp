#include "fuzz/check.h"
#include "machine/jet/reader/card_stream.h"

#include <string>
#include <string_view>

namespace {

using namespace machine::jet;

struct Taken {
    std::string rows;
    bool good = true, complete = false;
};

/// Writes the rows that are taken out of the stream once more.
Taken take(std::string_view stream, std::size_t piece) {
    Taken taken;
    CardStreamParser parser([&](Table table, const Row& row) { append_row(taken.rows, table, row); });
    for (; !stream.empty() && taken.good; stream.remove_prefix(std::min(piece, stream.size())))
        taken.good = parser.feed(stream.substr(0, piece));
    taken.complete = parser.is_complete();
    return taken;
}

}  // namespace

/// A stream is taken the same in whatever pieces it comes, and a whole one is what its rows would be written
/// as.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view stream(reinterpret_cast<const char*>(data), size);
    const Taken whole = take(stream, size + 1), pieces = take(stream, 7);
    fuzz::check(whole.rows == pieces.rows && whole.good == pieces.good && whole.complete == pieces.complete,
                "pieces make no difference");
    if (whole.complete) {
        const std::string rows = stream_start() + whole.rows;
        fuzz::check(stream.starts_with(rows) && stream.size() > rows.size(), "the rows are what was sent");
    }
    return 0;
}
