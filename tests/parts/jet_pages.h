#pragma once

#include "machine/jet/file/jet_values.h"
#include "tests/parts/card_fixtures.h"

#include <cstdint>

namespace tests {

/// The pages of the edge database, whose cards are moved here as they move when they outgrow their page.
class JetPages {
  public:
    struct Slot {
        std::size_t page;
        std::size_t number;
    };
    static constexpr int LIVING = 0, MOVED = 0x4000, NEW_PLACE = 0x8000, DELETED = MOVED | NEW_PLACE;

    /// Pages of cards with room for some more, and other pages.
    static constexpr std::size_t EARLIER_ROOM = 44, ROOM = 61;
    static constexpr std::size_t DEFINITION = 27, INDEX = 29, FOLDERS = 30, END = 62;

    /// Gives the row another place, behind the last row of a page, with a longer name. That has to be one of
    /// single bytes.
    Slot copy(Slot row, std::size_t page, std::string_view end_of_name = {}) {
        const std::size_t begin = start_of(row);
        const std::string body = grown(bytes.substr(at(row.page) + begin, end_of(row) - begin), end_of_name);
        const std::size_t number = get_16(at(page) + COUNT);
        const std::size_t start = end_of({page, number}) - body.size();
        bytes.replace(at(page) + start, body.size(), body);
        put_16(at(page) + COUNT, number + 1);
        put_16(at(page) + SLOTS + 2 * number, start | NEW_PLACE);
        return {page, number};
    }
    void mark(Slot slot, int marks) {
        put_16(at(slot.page) + SLOTS + 2 * slot.number, start_of(slot) | static_cast<std::size_t>(marks));
    }
    void point(Slot from, Slot to, int marks = MOVED) {
        const std::size_t begin = at(from.page) + start_of(from);
        put_16(begin, to.number | (to.page & 0xFF) << 8);
        put_16(begin + 2, to.page >> 8);
        mark(from, marks);
    }
    Slot move(Slot row, std::size_t page, std::string_view end_of_name = {}) {
        const Slot place = copy(row, page, end_of_name);
        point(row, place);
        return place;
    }
    void remove(Slot row) {
        mark(row, DELETED);
        put_16(at(DEFINITION) + ROWS, get_16(at(DEFINITION) + ROWS) - 1);
    }
    /// Leaves the last row's slot as it is, but out of the count.
    void leave_out_last(std::size_t page) { put_16(at(page) + COUNT, get_16(at(page) + COUNT) - 1); }

    std::string bytes = bytes_of(CardsOnDisk::fixture("edge"));

  private:
    /// Positions in a data page and in the table's definition.
    static constexpr std::size_t COUNT = 12, SLOTS = 14, ROWS = 16;

    static std::size_t at(std::size_t page) { return page * machine::jet::PAGE_BYTES; }
    std::size_t get_16(std::size_t where) const { return machine::jet::little_endian_16(bytes, where); }
    void put_16(std::size_t where, std::size_t number) {
        bytes.at(where) = static_cast<char>(number);
        bytes.at(where + 1) = static_cast<char>(number >> 8);
    }
    std::size_t start_of(Slot slot) const { return get_16(at(slot.page) + SLOTS + 2 * slot.number) & 0x1FFF; }
    std::size_t end_of(Slot slot) const {
        return slot.number == 0 ? machine::jet::PAGE_BYTES : start_of({slot.page, slot.number - 1});
    }

    /// A row ends with the ends of its texts from the last one to the first, the first one's start, the
    /// number of texts and three bytes for the columns that are not NULL.
    static std::string grown(std::string row, std::string_view end_of_name) {
        const std::size_t texts = row.size() - 3 - 2, starts = texts - 2;
        const std::size_t name_end = machine::jet::little_endian_16(row, starts - 2);
        for (std::size_t i = 1; i <= machine::jet::little_endian_16(row, texts); ++i) {
            const std::size_t end = machine::jet::little_endian_16(row, starts - 2 * i) + end_of_name.size();
            row[starts - 2 * i] = static_cast<char>(end);
            row[starts - 2 * i + 1] = static_cast<char>(end >> 8);
        }
        return row.insert(name_end, end_of_name);
    }
};

}  // namespace tests
