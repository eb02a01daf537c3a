#pragma once

#include "machine/jet/reader/card_schema.h"
#include "platform/text/text.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <variant>

namespace machine::jet {

/// How the reader hands the tables over to the program: a mark with the version, a frame for each row and one
/// at the end with the numbers of rows. A stream without that end is no part of the cards but none of them.
///
/// A frame is a letter, the length of what follows in four bytes and that. In a row's frame stands the table
/// and then each of its columns but the memos, which nobody reads. Numbers and texts are as the machine has
/// them, since both ends are one installation's.

/// NULL, a number or a text that lives as long as the row is looked at.
using Cell = std::variant<std::monostate, std::int32_t, platform::TextView>;

/// A row's cells in the order of its table's columns; those behind the table's last one are NULL.
using Row = std::array<Cell, MOST_COLUMNS>;

/// The start of the stream.
std::string stream_start();
void append_row(std::string& stream, Table table, const Row& row);
void append_end(std::string& stream, std::uint32_t folders, std::uint32_t cards);

/// Takes a stream apart that may be anything: a reader of hostile files can be made to write what it should
/// not.
class CardStreamParser {
  public:
    using TakeRow = std::function<void(Table table, const Row& row)>;

    explicit CardStreamParser(TakeRow take_row) : take_row_(std::move(take_row)) {}

    /// Takes the next bytes. Returns false once the stream is broken, and from then on.
    bool feed(std::string_view bytes);
    /// Whether the whole stream has come, and nothing behind it.
    bool is_complete() const { return state_ == State::end; }

  private:
    enum class State { start, frames, end, broken };

    State take_start(std::string_view& rest) const;
    State take_frame(std::string_view& rest);
    bool take_row(std::string_view payload);
    bool ends_well(std::string_view payload) const;

    TakeRow take_row_;
    State state_ = State::start;
    /// The beginning of what has not come whole yet.
    std::string waiting_;
    std::array<std::uint32_t, std::size(TABLES)> rows_{};
    platform::Text texts_;
};

}  // namespace machine::jet
