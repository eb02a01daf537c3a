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

/// How the reader passes the tables to the program: a mark with the version, a frame for each row and an end
/// frame with the numbers of rows. A stream without its end frame is discarded whole.
///
/// A frame is a letter, the length of the payload in four bytes and the payload. A row's payload is the table
/// and each of its columns except memos, which nobody reads. Numbers and texts are in the machine's own byte
/// order, since both programs run on it.

/// NULL, a number or a text, which is valid during the call that passes the row.
using Cell = std::variant<std::monostate, std::int32_t, platform::TextView>;

/// A row's cells in the order of its table's columns; cells after the last column are NULL.
using Row = std::array<Cell, MOST_COLUMNS>;

/// The start of the stream.
std::string stream_start();
void append_row(std::string& stream, Table table, const Row& row);
void append_end(std::string& stream, std::uint32_t folders, std::uint32_t cards);

/// Parses a stream and trusts none of its bytes: a hostile file can make the reader write anything.
class CardStreamParser {
  public:
    using TakeRow = std::function<void(Table table, const Row& row)>;

    explicit CardStreamParser(TakeRow take_row) : take_row_(std::move(take_row)) {}

    /// Takes the next bytes. Returns false when the stream is broken, and stays so.
    bool feed(std::string_view bytes);
    /// Whether the stream has ended properly, with nothing after its end frame.
    bool is_complete() const { return state_ == State::end; }

  private:
    enum class State { start, frames, end, broken };

    State take_start(std::string_view& rest) const;
    State take_frame(std::string_view& rest);
    bool take_row(std::string_view payload);
    bool ends_well(std::string_view payload) const;

    TakeRow take_row_;
    State state_ = State::start;
    /// The bytes of a frame that is not complete yet.
    std::string waiting_;
    std::array<std::uint32_t, std::size(TABLES)> rows_{};
    platform::Text texts_;
};

}  // namespace machine::jet
