// The input is damage to an intact card database with moved cards: three bytes for a position and one byte to
// write there, again and again. The program that reads it is a process of its own; whatever happens to it,
// the result must be all cards or an error.

#include "fuzz/check.h"
#include "platform/error.h"
#include "tests/parts/jet_pages.h"

namespace {

int rows_of(platform::CardConnection& connection, const platform::Text& table) {
    return connection.open_recordset(u"select f_idx from " + table)->record_count();
}

/// Two cards moved, one of them twice, and a third one moved and was deleted.
std::string with_moved_cards() {
    using tests::JetPages;
    JetPages pages;
    pages.move({32, 0}, JetPages::ROOM);
    const auto first = pages.move({32, 1}, JetPages::ROOM);
    pages.point(first, pages.copy(first, JetPages::EARLIER_ROOM), JetPages::DELETED);
    pages.move({32, 2}, JetPages::ROOM);
    pages.remove({32, 2});
    return pages.bytes;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const std::string sound = with_moved_cards();
    static const auto folders = tests::CardTable("edge.tbl_folder").rows.size();
    static const auto cards = tests::CardTable("edge.tbl_namecard").rows.size() - 1;
    static tests::CardsOnDisk disk;

    std::string changed = sound;
    for (std::size_t at = 0; at + 3 < size; at += 4) {
        const std::size_t where = data[at] | data[at + 1] << 8 | data[at + 2] << 16;
        changed[where % changed.size()] = static_cast<char>(data[at + 3]);
    }
    disk.put_bytes(changed);
    try {
        const auto connection = disk.connect();
        fuzz::check(rows_of(*connection, u"tbl_folder") == static_cast<int>(folders),
                    "all folders are there");
        fuzz::check(rows_of(*connection, u"tbl_namecard") == static_cast<int>(cards), "all cards are there");
    } catch (const platform::RuntimeError&) {
        // An error, which a box shows: better than a part of the cards.
    }
    return 0;
}
