#include "machine/jet/reader/card_stream.h"

#include <algorithm>
#include <cstring>
#include <optional>

namespace machine::jet {

using platform::TextView;

namespace {

constexpr std::string_view START("CARDS\0\1\n", 8);

constexpr std::size_t FRAME_HEAD = 1 + sizeof(std::uint32_t);
constexpr char ROW_FRAME = 'R';
constexpr char END_FRAME = 'E';
/// More than the texts of one page can need.
constexpr std::size_t LONGEST_FRAME = 32768;

constexpr char IS_NULL = '0';
constexpr char IS_NUMBER = 'n';
constexpr char IS_TEXT = 't';

template <class Number>
void append(std::string& out, Number number) {
    out.append(reinterpret_cast<const char*>(&number), sizeof number);
}

/// Takes the number at the front; the caller has checked the length.
template <class Number>
Number take(std::string_view& bytes) {
    Number number;
    std::memcpy(&number, bytes.data(), sizeof number);
    bytes.remove_prefix(sizeof number);
    return number;
}

void append_frame(std::string& stream, char kind, std::string_view payload) {
    stream += kind;
    append(stream, static_cast<std::uint32_t>(payload.size()));
    stream += payload;
}

void append_cell(std::string& out, const Cell& cell) {
    if (const auto* number = std::get_if<std::int32_t>(&cell)) {
        out += IS_NUMBER;
        append(out, *number);
    } else if (const auto* text = std::get_if<TextView>(&cell)) {
        out += IS_TEXT;
        append(out, static_cast<std::uint16_t>(text->size()));
        out.append(reinterpret_cast<const char*>(text->data()), text->size() * sizeof(char16_t));
    } else {
        out += IS_NULL;
    }
}

/// Takes the cell at the front of the bytes, or nothing when it is incomplete or of another kind. `texts` has
/// room for its text.
std::optional<Cell> take_cell(std::string_view& bytes, Kind kind, platform::Text& texts) {
    if (bytes.empty()) return std::nullopt;
    const char mark = bytes.front();
    bytes.remove_prefix(1);
    if (mark == IS_NULL) return Cell();
    if (mark == IS_NUMBER && kind == Kind::number && bytes.size() >= sizeof(std::int32_t))
        return take<std::int32_t>(bytes);
    if (mark != IS_TEXT || kind != Kind::text || bytes.size() < sizeof(std::uint16_t)) return std::nullopt;
    const std::size_t units = take<std::uint16_t>(bytes);
    const std::size_t length = units * sizeof(char16_t);
    if (bytes.size() < length) return std::nullopt;
    const std::size_t begin = texts.size();
    texts.resize(begin + units);
    if (length > 0) std::memcpy(texts.data() + begin, bytes.data(), length);
    bytes.remove_prefix(length);
    return TextView(texts).substr(begin);
}

}  // namespace

std::string stream_start() { return std::string(START); }

void append_row(std::string& stream, Table table, const Row& row) {
    std::string payload(1, static_cast<char>(table));
    const auto columns = columns_of(table);
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (columns[i].kind != Kind::memo) append_cell(payload, row[i]);
    }
    append_frame(stream, ROW_FRAME, payload);
}

void append_end(std::string& stream, std::uint32_t folders, std::uint32_t cards) {
    std::string payload;
    append(payload, folders);
    append(payload, cards);
    append_frame(stream, END_FRAME, payload);
}

bool CardStreamParser::feed(std::string_view bytes) {
    waiting_ += bytes;
    std::string_view rest = waiting_;
    std::size_t before = 0;
    do {
        before = rest.size();
        if (state_ == State::start) state_ = take_start(rest);
        if (state_ == State::frames) state_ = take_frame(rest);
        if (state_ == State::end && !rest.empty()) state_ = State::broken;
    } while (rest.size() != before && state_ == State::frames);
    waiting_.erase(0, state_ == State::broken ? waiting_.size() : waiting_.size() - rest.size());
    return state_ != State::broken;
}

CardStreamParser::State CardStreamParser::take_start(std::string_view& rest) const {
    if (!rest.starts_with(START.substr(0, rest.size()))) return State::broken;
    if (rest.size() < START.size()) return State::start;
    rest.remove_prefix(START.size());
    return State::frames;
}

CardStreamParser::State CardStreamParser::take_frame(std::string_view& rest) {
    if (rest.size() < FRAME_HEAD) return State::frames;
    std::string_view frame = rest;
    const char kind = take<char>(frame);
    const std::size_t length = take<std::uint32_t>(frame);
    if (length > LONGEST_FRAME) return State::broken;
    if (frame.size() < length) return State::frames;
    const std::string_view payload = frame.substr(0, length);
    rest.remove_prefix(FRAME_HEAD + length);
    if (kind == ROW_FRAME) return take_row(payload) ? State::frames : State::broken;
    return kind == END_FRAME && ends_well(payload) ? State::end : State::broken;
}

bool CardStreamParser::take_row(std::string_view payload) {
    if (payload.empty()) return false;
    const auto table = static_cast<Table>(payload.front());
    if (std::ranges::find(TABLES, table) == std::end(TABLES)) return false;
    payload.remove_prefix(1);

    texts_.clear();
    texts_.reserve(payload.size() / 2);
    Row row;
    const auto columns = columns_of(table);
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (columns[i].kind == Kind::memo) continue;
        const auto cell = take_cell(payload, columns[i].kind, texts_);
        if (!cell) return false;
        row[i] = *cell;
    }
    if (!payload.empty()) return false;
    ++rows_[static_cast<std::size_t>(table)];
    take_row_(table, row);
    return true;
}

bool CardStreamParser::ends_well(std::string_view payload) const {
    if (payload.size() != 2 * sizeof(std::uint32_t)) return false;
    const auto folders = take<std::uint32_t>(payload), cards = take<std::uint32_t>(payload);
    return folders == rows_[0] && cards == rows_[1];
}

}  // namespace machine::jet
